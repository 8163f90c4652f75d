#include "transfer/krt300/Puntos_KRT300.h"

#include "core/ModEstTotal.h"
#include "session/Desplazamiento.h"
#include "transfer/Lineas_Envio.h"

#include <algorithm>

namespace {

constexpr int EJES = 3;
constexpr int DECIMALES = 3;
constexpr int PASOS_BARRA = 25;
constexpr int CAMPOS_MINIMOS = 4;
constexpr QChar MARCA_REGISTRO = u'_';

const Decimal MITAD = *Decimal::De_Cifras(u"5", DECIMALES + 1);
// The instrument's field has no room from here on.
const Decimal LIMITE = Decimal::De_Miles(9999999999);
const Decimal MILLON = Decimal::De_Miles(1000000000);

/// Offsets in force and the model's rule, read once for a file.
struct Ajuste {
    Decimal desplazamiento[EJES];
    bool quita_millones = Nombre_Estacion.contains(u"X13");

    Ajuste()
    {
        const QString* const textos[EJES] = {&Desp_X, &Desp_Y, &Desp_Z};
        for (int i = 0; i < EJES; ++i)
            desplazamiento[i] =
                Valor_Desplazamiento(*textos[i], QString::fromUtf16(FORMATO_COORDENADA));
    }

    Decimal Aplicar(const Decimal& leido, int eje) const
    {
        const Decimal suma = leido + desplazamiento[eje];
        if (!quita_millones || eje == EJES - 1 || suma < MILLON) return suma;
        const int primera = QString::number(suma.Entera()).at(0).digitValue();
        return suma - Decimal::De_Miles(qint64(primera) * 1000000000);
    }
};

Punto_Envio Leer_Punto(const QString& linea, const QString& separador, qint64 numero,
                       const Ajuste& ajuste)
{
    Punto_Envio punto;
    punto.nombre = Trozo(1, linea, separador);
    Comprobar_Campo(punto.nombre, MARCA_REGISTRO, numero, linea);
    if (Basico::RTrim(punto.nombre).size() > LARGO_NOMBRE)
        throw Error_De_Linea(
            5, numero, linea,
            QStringLiteral("El nombre tiene más de %1 caracteres").arg(LARGO_NOMBRE));
    for (int eje = 0; eje < EJES; ++eje) {
        const auto leido = Decimal::Leer(Trozo(eje + 2, linea, separador));
        if (!leido) throw Error_De_Linea(13, numero, linea);
        punto.coordenadas[eje] = ajuste.Aplicar(*leido, eje).Texto().replace(u'.', u',');
    }
    punto.codigo = Trozo(5, linea, separador);
    return punto;
}

QString En_El_Cable(const Decimal& suma)
{
    const Decimal redondeada = suma.Absoluto() + MITAD;
    return (suma.Negativo() ? u'-' : u'+') +
           QString::number(redondeada.Entera()).rightJustified(6, u'0') +
           redondeada.Decimales(18).left(DECIMALES);
}

// @return false when a coordinate doesn't fit; the point is then as it was
bool Pasar_Al_Cable(Punto_Envio& punto)
{
    QString cable[EJES];
    for (int eje = 0; eje < EJES; ++eje) {
        const Decimal suma = Decimal::Leer(punto.coordenadas[eje]).value_or(LIMITE);
        if (suma.Absoluto() >= LIMITE) return false;
        cable[eje] = En_El_Cable(suma);
    }
    std::ranges::move(cable, std::begin(punto.coordenadas));
    return true;
}

} // namespace

bool Leer_Puntos(const QString& fichero, const QString& separador, QList<Punto_Envio>& puntos)
{
    if (!FileExist(fichero)) {
        Interfaz_Actual().Mensaje("El Fichero especificado no existe", Icono::Exclamacion);
        return false;
    }
    const Cursor_De_Espera cursor;
    const Ajuste ajuste;
    const QStringList lineas = Leer_Lineas_Envio(fichero);
    const qint64 largo = QFileInfo(fichero).size(), paso = largo / PASOS_BARRA;
    qint64 hecho = 0, mostrado = 0;
    for (qsizetype i = 0; i < lineas.size() && !Proceso_Cancelado; ++i) {
        QString linea = lineas[i];
        hecho += linea.size() + 2;
        if (linea.trimmed().isEmpty()) continue;
        if (separador == u" ") linea = Quitar_Espacios_Dobles(linea);
        if (Contar_Trozos(linea, separador) < CAMPOS_MINIMOS) {
            Avisar_Separador(linea);
            return false;
        }
        if (puntos.size() == MAX_PUNTOS)
            throw Error_De_Linea(
                9, i + 1, linea,
                QStringLiteral("El fichero tiene más de %1 puntos").arg(MAX_PUNTOS));
        try {
            puntos.append(Leer_Punto(linea, separador, i + 1, ajuste));
        } catch (const Error_Ejecucion& e) {
            // Beyond what can be held exactly.
            if (e.numero == 6) throw Error_De_Linea(6, i + 1, linea);
            throw;
        }
        if (hecho - mostrado <= paso) continue;
        mostrado = hecho;
        Interfaz_Actual().Proceso_Avanzar(qMin(hecho, largo));
    }
    return true;
}

QString Comprobar_Puntos(QList<Punto_Envio>& puntos)
{
    QStringList malos;
    for (Punto_Envio& punto : puntos) {
        if (Pasar_Al_Cable(punto)) continue;
        malos << QStringList{punto.nombre, punto.coordenadas[0], punto.coordenadas[1],
                             punto.coordenadas[2]}
                     .join(QChar(SEP_CAMPO));
    }
    return malos.join(QChar(SEP_LISTA));
}

QString Registro_Punto(const Punto_Envio& punto)
{
    // The instrument's x is the second coordinate of the file, its y the first.
    return QStringLiteral("_+") + Basico::RTrim(punto.nombre).leftJustified(LARGO_NOMBRE) +
           QStringLiteral("_ x") + punto.coordenadas[1] + QStringLiteral("_ y") +
           punto.coordenadas[0] + QStringLiteral("_ z") + punto.coordenadas[2];
}
