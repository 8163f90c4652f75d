#include "rawfiles/Exportar_Ter_Plt.h"

#include "core/ModEstTotal.h"
#include "rawfiles/Exportar_Datos.h"
#include "rawfiles/Fichero_Destino.h"

#include <algorithm>
#include <numeric>
#include <QHash>
#include <vector>

namespace {

const QString CABECERA_TER = QStringLiteral("*TER");

// The last `ancho` characters of as many blanks and the trimmed value: a longer one loses its
// leading characters.
QString A_La_Derecha(const QString& valor, int ancho)
{
    return Basico::Right(Basico::Space(ancho) + Basico::Trim(valor), ancho);
}

// Number text with its zero before the point.
QString Numero_General(double numero)
{
    return Basico::Texto_Numero(numero).replace(u',', u'.');
}

// Places of the first two commas of a row, from 1; 0 for one that isn't there.
struct Comas {
    qint64 primera = 0, segunda = 0;

    explicit Comas(const QString& datos)
        : primera(Basico::InStr(1, datos, u",")),
          segunda(primera > 0 ? Basico::InStr(primera + 1, datos, u",") : 0)
    {
    }
};

struct Fila_Perfil {
    double pk = 0; ///< station
    QString desplazamiento = QStringLiteral("0"), cota;

    Fila_Perfil(const QString& datos, const Comas& comas)
    {
        if (comas.primera == 0) return;
        pk = Basico::Val(datos.left(comas.primera - 1));
        const QString resto = datos.mid(comas.primera);
        desplazamiento = Trozo(1, resto, u',');
        if (comas.segunda > 0) cota = datos.mid(comas.segunda);
    }
};

// The rows of the session twice: as stored, which is how a group without an order comes, and by
// their sequence, which is how the walk goes.
class Perfiles {
public:
    explicit Perfiles(qint64 id)
    {
        std::vector<qint64> secuencias;
        for (Recorrido r = Base_Datos->Recorrer(
                 QStringLiteral("SELECT * FROM Registros WHERE ID = %1").arg(id));
             r.Siguiente();) {
            secuencias.push_back(r.Entero(1));
            datos.push_back(r.Texto(3));
        }
        marcha.resize(datos.size());
        std::iota(marcha.begin(), marcha.end(), std::size_t(0));
        std::ranges::stable_sort(marcha, {}, [&](std::size_t i) { return secuencias[i]; });
    }

    bool Vacios() const { return datos.empty(); }
    std::size_t Cuantos() const { return datos.size(); }
    const QString& En_Marcha(std::size_t n) const { return datos[marcha[n]]; }

    // The rows of one section: those that begin as `modelo` does up to the comma, ordered by the
    // number behind it; all rows as stored when the commas in force have none.
    QStringList Grupo(const QString& modelo, const Comas& comas)
    {
        if (comas.primera == 0) return QStringList(datos.begin(), datos.end());
        // The row would end the text that it stands in.
        if (modelo.contains(u'\'')) throw Error_Ejecucion(3075);
        std::vector<std::size_t> grupo = Por_Comienzo(comas.primera)[Comienzo(modelo, comas)];
        std::ranges::stable_sort(grupo, {}, [&](std::size_t i) { return Orden(i, comas); });
        QStringList filas;
        for (const std::size_t i : grupo)
            filas << datos[i];
        return filas;
    }

private:
    using Indice = QHash<QString, std::vector<std::size_t>>;

    static QString Comienzo(const QString& fila, const Comas& comas)
    {
        return fila.left(comas.primera - 1);
    }

    double Orden(std::size_t i, const Comas& comas) const
    {
        const QString desde = Basico::Mid(datos[i], comas.primera + 1);
        return Basico::Val(comas.segunda > 0 ? desde.left(comas.segunda - 1) : desde);
    }

    // Rows by their first characters, counted once for each place that a comma has.
    const Indice& Por_Comienzo(qint64 primera)
    {
        const auto visto = indices.constFind(primera);
        if (visto != indices.constEnd()) return *visto;
        Indice indice;
        for (std::size_t i = 0; i < datos.size(); ++i)
            indice[datos[i].left(primera - 1)].push_back(i);
        return *indices.insert(primera, indice);
    }

    std::vector<QString> datos;
    std::vector<std::size_t> marcha;
    QHash<qint64, Indice> indices;
};

void Escribir_Perfiles(Perfiles& perfiles, Fichero_Destino& destino)
{
    if (perfiles.En_Marcha(0) != CABECERA_TER) destino.Linea(CABECERA_TER);
    // A group is picked with the commas of the last row of the one before: that is the format's
    // own rule, and rows of one station are neighbours.
    Comas comas(perfiles.En_Marcha(0));
    double anterior = 0;
    for (std::size_t n = 0; n < perfiles.Cuantos();) {
        const QStringList grupo = perfiles.Grupo(perfiles.En_Marcha(n), comas);
        const double pk = Fila_Perfil(grupo.first(), Comas(grupo.first())).pk;
        if (anterior == 0 || anterior != pk)
            destino.Linea(A_La_Derecha(Numero_General(pk), 9) + u',' +
                          A_La_Derecha(QString::number(grupo.size()), 8) +
                          QStringLiteral(",  0  ,  0"));
        anterior = pk;
        for (const QString& datos : grupo) {
            comas = Comas(datos);
            const Fila_Perfil fila(datos, comas);
            if (fila.pk == anterior)
                destino.Linea(A_La_Derecha(fila.desplazamiento, 9) + u',' +
                              A_La_Derecha(fila.cota, 10));
        }
        n += std::size_t(grupo.size());
    }
}

void Exportar_Ter(qint64 id, const QString& ruta)
{
    Perfiles perfiles(id);
    if (perfiles.Vacios()) return;
    Fichero_Destino destino(ruta);
    Escribir_Perfiles(perfiles, destino);
    destino.Terminar();
}

} // namespace

bool Exportar_Ter_Plt(qint64 id, const QString& ruta, const QString& patron)
{
    const Cursor_De_Espera espera;
    try {
        if (patron == u"*.ter")
            Exportar_Ter(id, ruta);
        else
            Copiar_Lineas(id, ruta);
        return true;
    } catch (...) {
        Informe_Error(
            QStringLiteral("Se produjo un error en el proceso de exportación del Fichero"),
            Error_En_Curso());
        return false;
    }
}
