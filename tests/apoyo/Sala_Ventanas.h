#pragma once

#include "tests/apoyo/Base_De_Prueba.h"
#include "tests/apoyo/Hijo.h"
#include "tests/apoyo/Interfaz_Guion.h"

#include <QMdiArea>

/// What a test of dialogs lives in: an install directory with its database, the scripted interface,
/// and an area for modeless dialogs. All dialogs are unloaded before it goes.
class Sala_Ventanas : public Base_De_Prueba {
public:
    Sala_Ventanas()
    {
        area.setObjectName("Area");
        area.resize(1000, 760);
        area.show();
        Ventana::Poner_Area(&area);
    }
    ~Sala_Ventanas()
    {
        Limpiar_Ventanas();
        // Boxes that a test has not looked at are a failure of it.
        if (!interfaz.avisos.isEmpty())
            QTest::qFail(qPrintable("boxes left: " + interfaz.Textos().join(" | ")), __FILE__,
                         __LINE__);
    }
    Sala_Ventanas(const Sala_Ventanas&) = delete;
    Sala_Ventanas& operator=(const Sala_Ventanas&) = delete;

    /// The texts of the boxes shown since the last call.
    QStringList Tomar_Avisos()
    {
        const QStringList textos = interfaz.Textos();
        interfaz.avisos.clear();
        return textos;
    }

    Interfaz_Guion interfaz;
    QMdiArea area;
};
