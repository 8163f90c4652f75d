#include "tests/apoyo/Instrumentos.h"

#include <QSet>

void Poner_Registro(const Base_De_Prueba& p, const QString& maquina, const QList<int>& opes,
                    const QString& id, const QString& nombre, const QString& tipo,
                    const QList<Campo_De_Prueba>& campos)
{
    for (const int ope : opes)
        p.Fila("Identificadores",
               {{"Nombre", maquina}, {"OPE", ope}, {"ID", id}, {"NomID", nombre}, {"tipo", tipo}});
    int orden = 0;
    for (const Campo_De_Prueba& c : campos)
        p.Fila("Campos", {{"Maquina", maquina},
                          {"ID", id},
                          {"Campo", c.campo},
                          {"Orden", ++orden},
                          {"Digitos", c.digitos},
                          {"PosDigit", c.posdigit},
                          {"Forsalida", c.forsalida},
                          {"Especial", c.especial},
                          {"Marcas", c.marcas},
                          {"Caracter", c.caracter}});
}

static void Poner_Operaciones(const Base_De_Prueba& p)
{
    const QList<std::pair<int, QString>> opes = {
        {0, "Datos de medición"},
        {1, "Datos de coordenadas"},
        {4, "Puntos"},
        {5, "Texto libre"},
        {6, "Ejes"},
        {7, "Perfiles transversales"},
        {2, "Librería de códigos"},
    };
    for (const auto& [ope, nombre] : opes)
        p.Fila("OPE", {{"OPE", ope}, {"DESOPE", nombre}});
    const auto ofrecer = [&](const QString& maquina, int ope, const QString& tipo) {
        for (const auto& [numero, nombre] : opes)
            if (numero == ope)
                p.Fila("KRT2",
                       {{"Nombre", maquina}, {"OPE", ope}, {"TipOpe", tipo}, {"DESOPE", nombre}});
    };
    for (const char* maquina : {"KRT300", "PX7"}) {
        ofrecer(maquina, 0, "D");
        ofrecer(maquina, 1, "D");
        ofrecer(maquina, 1, "C");
        ofrecer(maquina, 2, "C");
    }
    for (const int ope : {1, 4, 5, 6, 7})
        ofrecer("KRT800", ope, "D");
    ofrecer("NV400", 0, "D");
    for (const char* clave : {"KRT300", "KRT800", "NV400", "PX7"})
        p.Fila("KRT",
               {{"Nombre", QString(clave) + "-1"}, {"Clave", clave}, {"VelPuerto", "1200,9600"}});
}

void Poner_Instrumentos(const Base_De_Prueba& p)
{
    Poner_Operaciones(p);
    for (const char* maquina : {"KRT300", "PX7"}) {
        const QList<int> opes = {0, 1};
        Poner_Registro(p, maquina, opes, "x", "Coordenada y", "C",
                       {{"Coordenada Y", 11, "7,3", ".", "0.000", "", "CY"}});
        Poner_Registro(p, maquina, opes, "y", "Coordenada x", "C",
                       {{"Coordenada X", 11, "7,3", ".", "0.000", "", "CX"}});
        Poner_Registro(p, maquina, opes, "z", "Coordenada z", "C",
                       {{"Coordenada Z", 11, "7,3", ".", "0.000", "", "CZ"}});
        Poner_Registro(p, maquina, opes, "c", "Código", "C", {{"Código", 10}});
        Poner_Registro(p, maquina, opes, "H", "Ángulo", "C",
                       {{"Ángulo Horizontal", 8, "3,4", ".", "0.0000"},
                        {"Distancia", 8, "4,3", ".", "", "CD,CI"},
                        {"Reserva", 2, "*", "", "", "", "NL"},
                        {"Nota", 6}});
        Poner_Registro(p, maquina, opes, "E", "Estación", "G",
                       {{"Estación", 8}, {"Altura Instrumento", 6, "2,3", ".", "0.000"}});
    }
    Poner_Registro(p, "KRT800", {1}, "STN", "Estación", "G",
                   {{"Estación", 8, "*", "", "", "", "GE"},
                    {"Altura Instrumento", 8, "*", "", "", "CD,CI", "GE"}});
    Poner_Registro(p, "KRT800", {1}, "XYZ", "Coordenadas", "C",
                   {{"Punto", 8},
                    {"Coordenada X", 12, "7,3", "", "", "", "CX"},
                    {"Coordenada Y", 12, "7,3", "", "", "", "CY"},
                    {"Coordenada Z", 12, "7,3", "", "", "", "CZ"},
                    {"Código", 10}});
    Poner_Registro(p, "KRT800", {1}, "SS", "Radiación", "C",
                   {{"Punto", 8},
                    {"Altura Prisma", 8},
                    {"Reserva", 4, "*", "", "", "", "NL"},
                    {"Distancia", 8, "*", "", "", "CD"}});
    Poner_Registro(p, "KRT800", {4}, "Punto", "Punto", "C",
                   {{"Punto", 8},
                    {"Coordenada X", 12, "7,3", "", "", "", "CX"},
                    {"Coordenada Y", 12, "7,3", "", "", "", "CY"},
                    {"Coordenada Z", 12, "7,3", "", "", "", "CZ"},
                    {"Código", 10}});
    Poner_Registro(p, "KRT800", {7}, "Per.Trans", "Perfil", "C",
                   {{"PK", 8}, {"Eje", 8}, {"Cota", 8}});
    Poner_Registro(p, "KRT800", {6}, "EJE", "Eje", "C", {{"Inicio", 8}, {"Azimut", 8}});
    Poner_Registro(p, "NV400", {0}, "g", "Espalda", "M",
                   {{"Punto", 8}, {"Lectura", 8}, {"Distancia", 8}, {"Cota", 8}, {"Nulo", 1}});
    Poner_Registro(p, "NV400", {0}, "w", "Anillo", "M", {{"Punto", 8}, {"Nulo", 1}});
    Poner_Registro(p, "NV400", {}, "1", "", "",
                   {{"Punto", 8, "*", "1"}, {"Lectura", 9, "*", "2"}, {"Cota", 9, "*", "4"}});
}

void Poner_Sesion(const Base_De_Prueba& p, int id, const QString& maquina, int ope,
                  const QList<Linea_De_Prueba>& lineas)
{
    QSet<QString> puntos;
    Insercion registros = Base_Datos->Preparar_Insercion(
        "Registros", {"ID", "Secuencia", "Punto", "Datos", "DatosG"});
    int secuencia = 0;
    for (const Linea_De_Prueba& l : lineas) {
        registros.Anadir({id, ++secuencia, l.punto, l.datos, l.datosg});
        puntos << l.punto;
    }
    p.Fila("Sesiones", {{"ID", id},
                        {"Fecha", QDateTime(QDate(2024, 2, 29), QTime(8, 5, 9))},
                        {"NFichero", "Obra " + QString::number(id)},
                        {"OPE", ope},
                        {"Maquina", maquina},
                        {"MaqDes", maquina + "-1"},
                        {"NPuntos", puntos.size()}});
}
