#pragma once

#include <QSize>
#include <QString>

/// The window side of the start-up, in the hands of whoever has windows.
class Ventanas_Arranque {
public:
    Ventanas_Arranque() = default;
    Ventanas_Arranque(const Ventanas_Arranque&) = delete;
    Ventanas_Arranque& operator=(const Ventanas_Arranque&) = delete;
    virtual ~Ventanas_Arranque() = default;

    /// `FrmMain` comes to be, hidden, before the settings are read: reading the model's name writes
    /// its status panel.
    virtual void Crear_Principal() = 0;
    virtual void Puntero_De_Espera(bool espera) = 0;
    /// Size of the screen in pixels.
    virtual QSize Pantalla() const = 0;
    /// Background picture of `FrmMain`.
    virtual void Poner_Logo(const QString& fichero) = 0;
    /// `frmPantalla`, painted at once; and away with it.
    virtual void Mostrar_Portada() = 0;
    virtual void Quitar_Portada() = 0;
    virtual void Mostrar_Principal() = 0;
    /// `FrmKRT`, modal.
    virtual void Pedir_Modelo() = 0;
};

/// Brings the program up: global state, database, settings, splash, main window, model.
/// @param ruta  directory of the executable
/// @return false when the settings or the database could not be read: the message has been shown
/// and the run must end
bool Main(const QString& ruta, Ventanas_Arranque& ventanas);

/// @return true when the screen is exactly `ancho` by `alto` pixels
bool Es_Resolucion(const QSize& pantalla, int ancho, int alto);
/// Logo for a screen: the small one for 640 by 480 alone, the large one for any other.
QString Fichero_Logo(const QSize& pantalla);
