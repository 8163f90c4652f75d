#pragma once

#include "core/Ansi.h"
#include "rawfiles/Peticiones_Rawfiles.h"
#include "session/Consultas_Sesion.h"
#include "session/Peticiones_Sesion.h"
#include "tests/apoyo/Base_De_Prueba.h"
#include "tests/apoyo/Instrumentos.h"
#include "tests/apoyo/Interfaz_Guion.h"

#include <QFile>
#include <QTest>

/// What the tests of raw files live in: an install directory with the record kinds of all families,
/// the scripted interface, and answers for the small dialogs.
class Banco_Bruto : public Base_De_Prueba {
public:
    Banco_Bruto()
    {
        Peticiones_De_Sesion().Pedir_Separador = [this] { return separador; };
        Peticiones_De_Rawfiles().Pedir_Datos_IGN = [this] { return datos_ign; };
        Peticiones_De_Rawfiles().Poner_Aviso = [this](const QString& t) { aviso = t; };
        Poner_Clases();
        Familia("KRT300");
    }
    ~Banco_Bruto()
    {
        if (!interfaz.avisos.isEmpty())
            QTest::qFail(qPrintable("boxes left: " + interfaz.Textos().join(" | ")), __FILE__,
                         __LINE__);
    }
    Banco_Bruto(const Banco_Bruto&) = delete;
    Banco_Bruto& operator=(const Banco_Bruto&) = delete;

    void Familia(const QString& clave)
    {
        Clave_Estacion = clave;
        Nombre_Estacion = clave + "-1";
    }

    /// Stores lines as a session. @return it, as the browser would hand it over
    Sesion_Elegida Guardar(const QString& maquina, int ope, const QList<Linea_De_Prueba>& lineas)
    {
        const int id = int(Columna("SELECT ID FROM Sesiones").size()) + 1;
        Transaccion todas(*Base_Datos);
        Poner_Sesion(*this, id, maquina, ope, lineas);
        todas.Confirmar();
        return {id, maquina, ope,
                Columna("SELECT DESOPE FROM OPE WHERE OPE = " + QString::number(ope)).value(0)};
    }
    Sesion_Elegida Guardar(const QString& maquina, int ope, const QStringList& lineas)
    {
        QList<Linea_De_Prueba> filas;
        for (const QString& l : lineas)
            filas << Linea_De_Prueba{"", l};
        return Guardar(maquina, ope, filas);
    }

    /// A file of tests/datos/rawfiles, and its lines.
    static QByteArray Datos(const QString& nombre)
    {
        QFile f(DATOS_PRUEBA "/rawfiles/" + nombre);
        if (!f.open(QIODevice::ReadOnly)) qFatal("No test file %s", qPrintable(nombre));
        return f.readAll();
    }
    static QStringList Lineas(const QByteArray& bytes)
    {
        QStringList lineas = Ansi::A_Texto(bytes).split("\r\n");
        lineas.removeLast();
        return lineas;
    }
    static QString Ruta_Datos(const QString& nombre) { return DATOS_PRUEBA "/rawfiles/" + nombre; }

    /// The stored lines of a session as "point|line|general", code 6 as "^".
    QStringList Filas(const QString& id) const
    {
        QStringList filas;
        for (Recorrido r = Base_Datos->Recorrer(
                 "SELECT Punto, Datos, DatosG FROM Registros WHERE ID = ? ORDER BY Secuencia",
                 {id});
             r.Siguiente();)
            filas << r.Texto(0) + u'|' + r.Texto(1) + u'|' + r.Texto(2).replace(QChar(6), u'^');
        return filas;
    }

    /// The boxes shown since the last call.
    QStringList Avisos()
    {
        const QStringList textos = interfaz.Textos();
        interfaz.avisos.clear();
        return textos;
    }

    Interfaz_Guion interfaz;
    QString separador = " ";
    std::optional<QStringList> datos_ign;
    QString aviso;

private:
    void Poner_Clases()
    {
        struct Clase {
            const char* id;
            const char* tipo;
            int ancho;
        };
        const Clase serie_a[] = {{"J", "G", 21}, {"E", "G", 11}, {"I", "G", 7}, {"S", "G", 34},
                                 {"R", "G", 11}, {"O", "G", 9},  {"h", "P", 9}, {"v", "P", 9},
                                 {"d", "P", 10}, {"c", "P", 13}};
        for (const QString maquina : {"KRT300", "PX7"})
            for (const Clase& c : serie_a)
                Clase_De(maquina, 0, c.id, c.tipo, c.ancho);
        for (const QString maquina : {"KRT300", "PX7"})
            for (const char* const id : {"x", "y", "z"})
                Clase_De(maquina, 1, id, "P", 12);
        for (const char* const id : {"JOB", "STN", "XYZ", "BKB", "SS", "FS", "SD", "NOT"})
            Clase_De("KRT800", 0, id, "G", 0);
        Clase_De("KRT800", 4, "Punto", "P", 0);
        Clase_De("KRT800", 7, "Per.Trans", "P", 0);
        Clase_De("NV400", 0, "g", "P", 0);
        const std::pair<int, const char*> opes[] = {{0, "Datos de Medición"},
                                                    {1, "Datos de Coordenadas"},
                                                    {2, "Librería de Códigos"},
                                                    {4, "Puntos"},
                                                    {7, "Perfiles Transversales"}};
        for (const auto& [ope, nombre] : opes)
            Fila("OPE", {{"OPE", ope}, {"DESOPE", nombre}});
        const std::tuple<const char*, int, const char*> ofertas[] = {
            {"KRT300", 0, "HD6,LIN"},
            {"KRT300", 1, "HD6,LIN"},
            {"KRT300", 2, "HD6"},
            {"PX7", 0, "HD6,LIN"},
            {"KRT800", 0, "HD6,PLT,CTM,TOP,TPC,ANG,LEA,OTR"},
            {"KRT800", 4, "HD6"},
            {"KRT800", 7, "TER,HD6"},
            {"NV400", 0, "IGN,NIV"}};
        for (const auto& [maquina, ope, conv] : ofertas)
            Fila(
                "KRT2",
                {{"Nombre", maquina},
                 {"OPE", ope},
                 {"TipOpe", "D"},
                 {"Conv", conv},
                 {"DESOPE",
                  Columna("SELECT DESOPE FROM OPE WHERE OPE = " + QString::number(ope)).value(0)}});
        const std::pair<const char*, const char*> tipos[] = {
            {"HD6", "*.hd6"}, {"LIN", "*.txt"}, {"PLT", "*.plt"}, {"CTM", "*.ctm"},
            {"TOP", "*.top"}, {"TPC", "*.tpc"}, {"ANG", "*.ang"}, {"LEA", "*.lea"},
            {"TER", "*.ter"}, {"IGN", "*.txt"}, {"NIV", "*.dat"}, {"OTR", "*.otr"}};
        for (const auto& [clave, patron] : tipos)
            Fila("CONVERT", {{"Clave", clave},
                             {"descripcion", QString(" Forma ") + clave},
                             {"ext", QString(" ") + patron}});
    }
    void Clase_De(const QString& maquina, int ope, const QString& id, const QString& tipo,
                  int ancho)
    {
        const QByteArray campo = "Campo " + id.toLatin1();
        Poner_Registro(*this, maquina, {ope}, id, "Clase " + id, tipo,
                       {{campo.constData(), qMax(ancho - 1, 0)}});
    }
};
