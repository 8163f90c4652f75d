#pragma once

#include "codes/Codigos.h"
#include "codes/Peticiones_Codigos.h"
#include "tests/apoyo/Base_De_Prueba.h"
#include "tests/apoyo/Interfaz_Guion.h"
#include "transfer/Peticiones_Transfer.h"

/// What a test of the libraries lives in: an installation with two libraries of each series, and
/// requests that only take notes.
/// - A: "GEN" (ARBOL, CASA, MURO), "VACIA" without codes;
/// - B: "CAR" (EJE,2,EJES; BORDE,1,CALZADA), "NADA" without codes; entities 1 Punto and 2 Línea.
class Sala_Librerias : public Base_De_Prueba {
public:
    Sala_Librerias()
    {
        Clave_Estacion = "KRT300";
        Nombre_Estacion = "KRT300-1";
        Peticiones_De_Codigos().Enviar = [this](const QString& t) { enviados << t; };
        Peticiones_De_Codigos().Recibir_En_FrmSplash = [this](const Destino_Libreria& d) {
            en_splash << d;
        };
        Peticiones_De_Codigos().Recibir_En_FrmSplash2 = [this](const Destino_Libreria& d) {
            en_splash2 << d;
        };
        Peticiones_De_Transfer().Mostrar_Pasos = [this](const QString& tipo, const QString& ope) {
            pasos << tipo + ope;
        };
        Fila("TAB2", {{"TIPO", "ENTIDADES"}, {"INDICE", 1}, {"DESCRIPCION", "Punto"}});
        Fila("TAB2", {{"TIPO", "ENTIDADES"}, {"INDICE", 2}, {"DESCRIPCION", "Línea"}});
        Fila("TAB2", {{"TIPO", "OTRA"}, {"INDICE", 3}, {"DESCRIPCION", "Ajena"}});
        Crear_A("GEN", {"ARBOL", "CASA", "MURO"});
        Crear_A("VACIA", {});
        Crear_Libreria(*Base_Datos, Librerias_De(Serie::B), "CAR", "Obra lineal",
                       {{"EJE", 2, "EJES"}, {"BORDE", 1, "CALZADA"}});
        Crear_Libreria(*Base_Datos, Librerias_De(Serie::B), "NADA", "Sin códigos");
    }
    Sala_Librerias(const Sala_Librerias&) = delete;
    Sala_Librerias& operator=(const Sala_Librerias&) = delete;

    /// The texts of the boxes shown since the last call.
    QStringList Tomar_Avisos()
    {
        const QStringList textos = interfaz.Textos();
        interfaz.avisos.clear();
        return textos;
    }
    static QStringList Claves(Serie serie)
    {
        QStringList claves;
        for (const Cabecera_Libreria& l : Listar_Librerias(*Base_Datos, Librerias_De(serie)))
            claves << l.codigo;
        return claves;
    }
    /// Codes of a stored library; those of series B with key, entity and layer.
    static QStringList Codigos(Serie serie, const QString& libreria)
    {
        const Lista_De_Codigos lista = Leer_Codigos(*Base_Datos, Librerias_De(serie), libreria);
        if (serie == Serie::A) return Solo_Codigos(lista);
        QStringList textos;
        for (const Codigo_Libreria& c : lista)
            textos << QStringLiteral("%1:%2,%3,%4")
                          .arg(QString::number(c.secuencia), c.codigo, QString::number(c.entidad),
                               c.capa);
        return textos;
    }
    static void Crear_A(const QString& clave, const QStringList& codigos)
    {
        Crear_Libreria(*Base_Datos, Librerias_De(Serie::A), clave, "De " + clave,
                       Como_Libreria(codigos));
    }

    Interfaz_Guion interfaz;
    QStringList enviados; ///< texts handed to the sending dialog
    QList<Destino_Libreria> en_splash, en_splash2;
    QStringList pasos; ///< step helps shown: type and operation
};
