#pragma once

#include "core/ModEstTotal.h"
#include "tests/apoyo/Base_De_Prueba.h"
#include "tests/apoyo/Interfaz_Guion.h"
#include "transfer/Proceso_Recepcion.h"

/// A database with a few record kinds, in which finished receptions are stored.
struct Banco_Recepcion {
    Base_De_Prueba base;
    Interfaz_Guion interfaz;

    Banco_Recepcion()
    {
        for (const QString maquina : {"KRT300", "PX7"}) {
            Identificador(maquina, 0, "A", "M");
            Identificador(maquina, 0, "B", "M");
            Identificador(maquina, 0, "E", "G");
            Identificador(maquina, 0, "F", "G");
        }
        Identificador("KRT300", 1, "x", "M");
    }

    static void Identificador(const QString& maquina, int ope, const QString& id,
                              const QString& tipo)
    {
        Base_Datos->Execute("INSERT INTO Identificadores (Nombre, OPE, ID, NomID, tipo) "
                            "VALUES (?, ?, ?, '', ?)",
                            {maquina, ope, id, tipo});
    }

    /// A field of a KRT800 line.
    static void Campo(const QString& id, const QString& campo, int orden, const QString& marcas)
    {
        Base_Datos->Execute(
            "INSERT INTO Campos (Maquina, ID, Campo, Orden, Digitos, PosDigit, Forsalida, "
            "Especial, Marcas) VALUES ('KRT800', ?, ?, ?, 0, '*', '', '', ?)",
            {id, campo, orden, marcas});
    }

    static Resultado_Recepcion Procesar(const QString& maquina, int ope, const QString& buffer)
    {
        return Procesar_Recepcion({buffer, "Obra", ope, 0, maquina, "Modelo"});
    }

    /// The stored rows in physical order, as "session/sequence/point/line/general"; 6 and 5 are
    /// | and =.
    static QStringList Filas()
    {
        QStringList lista;
        for (Recorrido r =
                 Base_Datos->Recorrer("SELECT ID, Secuencia, Punto, Datos, DatosG FROM Registros");
             r.Siguiente();) {
            QStringList campos;
            for (int c = 0; c < 5; ++c)
                campos << r.Texto(c);
            lista << campos.join(u'/').replace(QChar(6), u'|').replace(QChar(5), u'=');
        }
        return lista;
    }

    /// `NPuntos` of a session; -1 when there is none.
    static qint64 Puntos(qint64 id = 1)
    {
        Conjunto_Registros s = Base_Datos->OpenRecordset("Sesiones");
        s.Index("PrimaryKey");
        s.Seek({id});
        return s.NoMatch() ? -1 : s.Entero("NPuntos");
    }
};
