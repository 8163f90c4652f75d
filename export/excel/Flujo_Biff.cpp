#include "export/excel/Flujo_Biff.h"

#include <algorithm>

using namespace Biff;

static Error_Ejecucion Acaba_Antes()
{
    return Libro_Danado(QStringLiteral("un registro acaba antes de tiempo"));
}

Flujo_Biff::Flujo_Biff(QByteArrayView b, qsizetype desde) : bytes(b), posicion(desde)
{
    if (desde < 0 || desde > bytes.size())
        throw Libro_Danado(QStringLiteral("una hoja cae fuera del fichero"));
}

Registro_Biff Flujo_Biff::Siguiente()
{
    const auto cabeza = Leer_Trazado<Cabeza>(bytes, posicion);
    if (!cabeza) throw Libro_Danado(QStringLiteral("falta el registro de fin"));
    posicion += qsizetype(sizeof(Cabeza));
    if (cabeza->longitud > bytes.size() - posicion) throw Acaba_Antes();
    const Registro_Biff registro{cabeza->id, bytes.sliced(posicion, cabeza->longitud)};
    posicion += cabeza->longitud;
    return registro;
}

std::vector<QByteArrayView> Flujo_Biff::Continuaciones()
{
    std::vector<QByteArrayView> cuerpos;
    for (;;) {
        const auto cabeza = Leer_Trazado<Cabeza>(bytes, posicion);
        if (!cabeza || cabeza->id != CONTINUE) return cuerpos;
        cuerpos.push_back(Siguiente().cuerpo);
    }
}

Cuerpo_Biff::Cuerpo_Biff(const Registro_Biff& registro, Flujo_Biff& flujo)
    : partes(flujo.Continuaciones())
{
    partes.insert(partes.begin(), registro.cuerpo);
    for (const QByteArrayView p : partes)
        quedan += p.size();
}

// Goes to the next body that holds something, once the present one is read.
bool Cuerpo_Biff::Pasar_De_Parte()
{
    bool otra = false;
    while (parte < partes.size() && en_parte == partes[parte].size()) {
        ++parte;
        en_parte = 0;
        otra = true;
    }
    return otra;
}

// As many of the next bytes as stand together, at least one.
QByteArrayView Cuerpo_Biff::Tomar(qsizetype cuantos)
{
    if (quedan == 0) throw Acaba_Antes();
    Pasar_De_Parte();
    const qsizetype juntos = std::min(cuantos, partes[parte].size() - en_parte);
    const QByteArrayView trozo = partes[parte].sliced(en_parte, juntos);
    en_parte += juntos;
    quedan -= juntos;
    return trozo;
}

QByteArray Cuerpo_Biff::Leer_Bytes(qsizetype cuantos)
{
    QByteArray leidos;
    while (leidos.size() < cuantos)
        leidos += Tomar(cuantos - leidos.size());
    return leidos;
}

void Cuerpo_Biff::Saltar(qsizetype cuantos)
{
    while (cuantos > 0)
        cuantos -= Tomar(cuantos).size();
}

QString Cuerpo_Biff::Leer_Texto(qsizetype caracteres)
{
    quint8 marcas = Leer<U8>();
    const qsizetype tramos = marcas & TEXTO_CON_TRAMOS ? quint16(Leer<U16>()) : 0;
    const qsizetype asiatico = marcas & TEXTO_ASIATICO ? qsizetype(Leer<U32>()) : 0;
    // No text is longer than what is left of the record: a false length makes no room.
    if (caracteres > quedan) throw Acaba_Antes();
    QString texto;
    texto.reserve(caracteres);
    while (texto.size() < caracteres) {
        // Characters that go on in the next record have their flags again before them.
        if (Pasar_De_Parte()) marcas = Leer<U8>();
        const bool ancho = marcas & TEXTO_ANCHO;
        const QByteArrayView trozo = Tomar((caracteres - texto.size()) * (ancho ? 2 : 1));
        if (ancho && trozo.size() % 2) throw Acaba_Antes();
        if (ancho)
            for (qsizetype i = 0; i < trozo.size(); i += 2)
                texto += QChar(char16_t(*Leer_Trazado<U16>(trozo, i)));
        else
            texto += QLatin1StringView(trozo.data(), trozo.size());
    }
    Saltar(tramos * BYTES_POR_TRAMO_8);
    Saltar(asiatico);
    return texto;
}
