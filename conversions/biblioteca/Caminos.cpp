#include "conversions/biblioteca/Caminos.h"

#include "conversions/instrumento/ModCLIP.h"
#include "conversions/landxml/Lectores_LandXML.h"

namespace {

using enum Clase_Conversion;

constexpr Fila_Clase CLASES[] = {
    {Alineaciones, "alineacion", Operacion::Alineaciones,
     u"Formato QSV (*.eje)|*.eje|Formato de CLIP (*.plt)|*.plt|Formato de ISTRAM(*.asc)|*.asc|"
     u"Formato de MXROAD(*.txt)|*.txt|Formato de HTRAZADO(*.res)|*.res",
     u"Formato Miraldos (*.ssh)|*.ssh|Formato Miraldos 640/6000 (*.hal)|*.hal",
     u"Existen alineaciones no válidas", false},
    {Rasantes, "rasante", Operacion::Rasantes,
     u"Formato QSV (*.ras)|*.ras|Formato de ISTRAM(*.txt)|*.txt", u"Formato Miraldos (*.ssv)|*.ssv",
     u"Existen vértices de rasantes no válidos", false},
    {Transversales, "transversal", Operacion::Perfiles,
     u"Formato QSV (*.tra)|*.tra|Formato de CLIP (*.rep)|*.rep|Formato de CLIP TER(*.ter)|*.ter|"
     u"Formato de ISTRAM(*.trm)|*.trm|Formato de MXROAD(*.mxr)|*.mxr|Formato de "
     u"HTRAZADO(*.per)|*.per",
     u"Formato Miraldos (*.ssp)|*.ssp", u"", true},
    {Puntos, "puntos", Operacion::Puntos, u"", u"", u"", false},
};

constexpr Parte_LandXML UN_EJE = {"eje", "seleccionaEjeLandXML", Listar_Ejes_LandXML,
                                  Parte_LandXML::Forma::Indice};
constexpr Parte_LandXML UNA_RASANTE = {"perfil", "seleccionaRasanteLandXML",
                                       Listar_Rasantes_LandXML, Parte_LandXML::Forma::Nombre};
constexpr Parte_LandXML UNAS_SECCIONES = {"seccion", "seleccionaTransverLandXML",
                                          Listar_Secciones_LandXML,
                                          Parte_LandXML::Forma::Dos_Nombres};

constexpr unsigned ENVIO = EN_ENVIO | EN_CONSOLA, LANDXML = EN_LANDXML | EN_CONSOLA;
constexpr bool AVISA = true, CALLA = false;

// The LandXML flow of the cross sections offers "*.ter" and "*.mxr" without a row, and has one for
// "plt" without offering it: users know it so.
constexpr Camino CAMINOS[] = {
    {Alineaciones, u"plt", "ssh hal", "aclipplt2krt", ENVIO, AVISA},
    {Alineaciones, u"eje", "ssh hal", "aqtr2krt", ENVIO},
    {Alineaciones, u"asc", "ssh hal", "aistram2krt", ENVIO},
    {Alineaciones, u"res", "ssh hal", "aistramList2krt", ENVIO},
    {Alineaciones, u"htr", "ssh hal", "ahtrazado2krt", ENVIO},
    {Alineaciones, u"txt", "ssh hal", "amxroad2krt", ENVIO},
    {Alineaciones, u"ali", "ssh hal", "aispol2krt", ENVIO},
    {Alineaciones, u"xml", "ssh hal", "alandxml2krt", ENVIO, AVISA, &UN_EJE},
    {Alineaciones, u"eje", "xml", "aQSV2LandXML", LANDXML},
    {Alineaciones, u"plt", "xml", "aclipplt2LandXML", LANDXML},
    {Alineaciones, u"asc", "xml", "aistram2LandXML", LANDXML},
    {Alineaciones, u"txt", "xml", "aistramList2LandXML", LANDXML},
    {Alineaciones, u"res", "xml", "aispol2LandXML", LANDXML},
    {Alineaciones, u"ali", "xml", "aispol2LandXML", EN_CONSOLA},
    {Alineaciones, u"htr", "xml", "aispol2LandXML", EN_CONSOLA},

    {Rasantes, u"alz", "ssv", "ristram2krt", ENVIO},
    {Rasantes, u"txt", "ssv", "ristram2krt", ENVIO},
    {Rasantes, u"ras", "ssv", "rqsv2krt", ENVIO, AVISA},
    {Rasantes, u"xml", "ssv", "rlandxml2krt", ENVIO, AVISA, &UNA_RASANTE},
    {Rasantes, u"ras", "xml", "rqsv2landxml", LANDXML},
    {Rasantes, u"alz", "xml", "ristram2landxml", EN_CONSOLA},
    {Rasantes, u"txt", "xml", "ristram2landxml", LANDXML},

    {Transversales, u"trv", "ssp", "cliptrv2krt", ENVIO},
    // Sent, a terrain file goes as it lies; on the console its sections are joined and sorted.
    {Transversales, u"ter", "ssp", nullptr, EN_ENVIO, CALLA, nullptr, Convertir_Ter},
    {Transversales, u"ter", "ssp", "cliptrv2krt", EN_CONSOLA},
    {Transversales, u"plt", "ssp", "cliptrv2krt", EN_CONSOLA},
    {Transversales, u"tra", "ssp", "qtr2krt", ENVIO},
    {Transversales, u"rep", "ssp", "clip2krt", ENVIO},
    {Transversales, u"per", "ssp", "istram2krt", ENVIO},
    {Transversales, u"trm", "ssp", "istram2krt", EN_CONSOLA},
    {Transversales, u"asc", "ssp", "htrazado2krt", ENVIO},
    {Transversales, u"mxr", "ssp", "mxroad2krt", ENVIO},
    {Transversales, u"xml", "ssp", "tralandxml2krt", ENVIO, CALLA, &UNAS_SECCIONES},
    {Transversales, u"plt", "xml", "traclip2landxml", LANDXML},
    {Transversales, u"trv", "xml", "traclip2landxml", EN_CONSOLA},
    {Transversales, u"ter", "xml", "traclip2landxml", EN_CONSOLA},
    {Transversales, u"rep", "xml", "tracliptrv2landxml", LANDXML},
    {Transversales, u"tra", "xml", "traqsv2landxml", LANDXML},
    {Transversales, u"trm", "xml", "traistram2landxml", LANDXML},
    {Transversales, u"per", "xml", "trahtrazado2lamdxml", LANDXML},
    {Transversales, u"asc", "xml", "trahtrazado2lamdxml", EN_CONSOLA},

    {Puntos, u"", "krt", "puntos2krt", EN_CONSOLA},
    {Puntos, u"", "x", "puntos2nivel", EN_CONSOLA},
    {Puntos, u"", "tpc", "lectkrt2bronex", EN_CONSOLA},
};

} // namespace

std::span<const Fila_Clase> Clases_De_Conversion()
{
    return CLASES;
}

const Fila_Clase& Clase_De(Clase_Conversion clase)
{
    return CLASES[std::size_t(clase)];
}

std::span<const Camino> Caminos()
{
    return CAMINOS;
}

const Camino* Buscar_Camino(Lugar lugar, Clase_Conversion clase, QStringView extension)
{
    for (const Camino& c : CAMINOS)
        if ((c.lugares & lugar) && c.clase == clase &&
            extension.compare(QStringView(c.extension), Qt::CaseInsensitive) == 0)
            return &c;
    return nullptr;
}

bool Escribe(const Camino& camino, const QString& extension)
{
    return QString::fromLatin1(camino.salidas).split(u' ').contains(extension);
}
