#pragma once

#include "app/ventanas/Ventanas.h"
#include "core/Reloj.h"
#include "core/ui/FrmMain.h"

#include <functional>
#include <QPixmap>
#include <QTemporaryDir>

class QWidget;

/// The program brought up on a copy of the delivered data, with some sessions, for its pictures.
class Escenario {
public:
    /// @param instalacion  assembled install directory
    /// @param salida  folder of the pictures
    Escenario(const QString& instalacion, const QString& salida);
    ~Escenario();
    Escenario(const Escenario&) = delete;
    Escenario& operator=(const Escenario&) = delete;

    FrmMain& Principal() { return *principal; }

    /// Makes another model the one in force.
    static void Modelo(const QString& nombre);

    /// Stores a picture of a widget as it is: of a window, a child window, a splash.
    void Retratar(QWidget& widget, const QString& nombre) const;
    /// Runs `abrir`, which opens a modal dialog, and stores a picture of it in a window frame.
    /// @param preparar  what the user does in the dialog before the picture is taken
    void Retratar_Modal(const QString& nombre, const std::function<void()>& abrir,
                        const std::function<void(QWidget&)>& preparar = {}) const;

    /// Lets the windows be laid out and painted.
    static void Asentar();

private:
    void Copiar(const QString& instalacion) const;
    /// Stores a delivered field book as a download of that moment would.
    void Descargar_Libro(const QString& modelo, int operacion, const QString& libro,
                         const QString& nombre, const QDateTime& momento);
    void Guardar(const QPixmap& imagen, const QString& nombre) const;

    QTemporaryDir carpeta;
    QString salida;
    std::unique_ptr<Reloj> reloj;
    Interfaz_Qt interfaz;
    std::unique_ptr<FrmMain> principal;
};
