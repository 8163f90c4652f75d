#pragma once

#include <memory>
#include <optional>
#include <QString>
#include <QStringList>

/// Icons of the message boxes, with the values of the platform's boxes.
enum class Icono { Ninguno = 0, Critico = 16, Pregunta = 32, Exclamacion = 48, Informacion = 64 };

/// What a file dialog is asked for.
struct Peticion_Fichero {
    QString titulo{};
    QString filtro{};      ///< pairs "descripción|patrón" joined by "|"
    int indice_filtro = 1; ///< chosen pair, from 1
    QString carpeta{};     ///< start folder; empty: the last one used
    QString extension{};   ///< default extension, added to a name typed without one; empty: none
    bool guardar = false;  ///< save-style dialog; never asks before overwriting
};

struct Fichero_Elegido {
    QString nombre;
    int indice_filtro = 1; ///< the pair that stood chosen, from 1
};

/// All that the program says to the user and asks of him. Logic never opens a window: it calls this
/// through `Interfaz_Actual()`. Three kinds exist: windows, console, and scripted for the tests.
class Interfaz {
public:
    Interfaz() = default;
    Interfaz(const Interfaz&) = delete;
    Interfaz& operator=(const Interfaz&) = delete;
    virtual ~Interfaz();

    /// Message box with one button; returns when it is closed. An empty title is the program's name.
    virtual void Mensaje(const QString& texto, Icono icono = Icono::Ninguno,
                         const QString& titulo = {}) = 0;
    /// Yes/no box. @return true for yes
    virtual bool Preguntar(const QString& texto, Icono icono = Icono::Pregunta,
                           const QString& titulo = {}) = 0;
    /// Input box. @return nothing when cancelled, which is not the same as an empty answer
    virtual std::optional<QString> Pedir_Texto(const QString& titulo, const QString& texto,
                                               const QString& inicial = {}) = 0;
    /// File dialog. @return nothing when cancelled
    virtual std::optional<Fichero_Elegido> Pedir_Fichero(const Peticion_Fichero& peticion) = 0;

    virtual void Pitar() = 0;
    virtual void Cursor_Ocupado(bool ocupado) = 0;

    /// Progress dialog `FrmProc`, always one and application-modal; its button sets
    /// `Proceso_Cancelado`. `Proceso_Avanzar` is cheap to call often.
    virtual void Proceso_Abrir(const QString& etiqueta, qint64 maximo) = 0;
    virtual void Proceso_Etiqueta(const QString& etiqueta, qint64 maximo) = 0;
    virtual void Proceso_Avanzar(qint64 valor) = 0;
    virtual void Proceso_Cerrar() = 0;

    /// Lets the interface repaint, without taking the user's input.
    virtual void Repintar() = 0;
    /// Lets waiting events through, input included: handlers may re-enter.
    virtual void Dejar_Pasar() = 0;

    /// Starts another program in a normal window, without waiting.
    /// @throws Error_Ejecucion 53 when it can't be started
    virtual void Arrancar(const QString& programa, const QStringList& argumentos) = 0;
    /// Opens the text viewer on a file; `fija` asks for its fixed-pitch font.
    virtual void Ver_Texto(const QString& fichero, bool fija = false) = 0;
    /// Ends the run in the one defined way, from wherever it is.
    virtual void Terminar(int estado) = 0;
    /// @return true once the run is being ended: nothing is asked any more
    virtual bool Terminada() const { return false; }
};

/// The interface in use. @throws Error_Ejecucion 91 when none has been set
Interfaz& Interfaz_Actual();
/// Puts another interface in use (null: none). @return the one that was
Interfaz* Poner_Interfaz(Interfaz* nueva);

/// Shows the file dialog until a name comes, as the routines that send do.
/// @return nothing only when the run is being ended meanwhile
std::optional<Fichero_Elegido> Pedir_Fichero_Insistiendo(const Peticion_Fichero& peticion);

class Error_Ejecucion;

/// The program's error report: critical box of the message, a line break, "(" number ") " and text.
void Informe_Error(const QString& mensaje, const Error_Ejecucion& error);
/// Text of that report, where a routine joins it with CR LF ("\r\n") or CR alone ("\r").
QString Texto_Informe(const QString& mensaje, const Error_Ejecucion& error,
                      const QString& salto = QStringLiteral("\r"));

/// The user's cancel in `FrmProc`: set by the dialog, read and cleared by whoever runs the loop.
extern bool Proceso_Cancelado;

/// Keeps `FrmProc` open while it lives, on every way out.
class Proceso {
public:
    Proceso(const QString& etiqueta, qint64 maximo);
    ~Proceso();
    Proceso(const Proceso&) = delete;
    Proceso& operator=(const Proceso&) = delete;
};

/// Keeps the busy cursor while it lives.
class Cursor_De_Espera {
public:
    Cursor_De_Espera();
    ~Cursor_De_Espera();
    Cursor_De_Espera(const Cursor_De_Espera&) = delete;
    Cursor_De_Espera& operator=(const Cursor_De_Espera&) = delete;
};
