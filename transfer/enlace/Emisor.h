#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>

/// What `Inicia_Envio` is told: the two kinds that a KRT300 or PX7 tells apart. A KRT800 gets the
/// operation number there, which changes nothing on its wire.
inline constexpr int ENVIO_COORDENADAS = 1, ENVIO_LIBRERIA = 2;

/// One upload, ready to go.
struct Datos_Envio {
    int tipo = 0;
    QString cabecera; ///< whole frame that goes ahead of the data; empty for kinds without one
    QString datos;    ///< the one text that is sent
};

/// Where an upload stands after a step.
enum class Fin_Envio {
    Sigue,
    Hecho,
    Rechazado,    ///< error 999: the instrument refuses, nothing more is sent
    Sin_Respuesta ///< the instrument is silent
};

/// What an upload does next, in the order of the members.
struct Paso_Envio {
    QString etiqueta;      ///< `Label1`; empty: as it was
    qint64 barra = -1;     ///< value of the bar; below 0: as it was
    QByteArray envia;      ///< to the instrument
    QStringList traza;     ///< lines of the trace
    int pausa = 0;         ///< milliseconds of the program's time to wait then
    bool encadena = false; ///< behind the pause `Seguir` gives the next step
    Fin_Envio fin = Fin_Envio::Sigue;
};

/// The sending half of a family's link for one upload: started, fed byte by byte and told of time
/// that passed, it says what goes out and what the dialog shows. It knows no port, dialog or timer,
/// and all its state is its own.
class Emisor {
public:
    Emisor() = default;
    Emisor(const Emisor&) = delete;
    Emisor& operator=(const Emisor&) = delete;
    virtual ~Emisor();

    /// Top of the bar, which begins at 0.
    virtual qint64 Maximo() const = 0;
    /// First output.
    virtual Paso_Envio Empezar_Envio() = 0;
    /// Takes one byte of the instrument.
    virtual Paso_Envio Siguiente_Envio(char caracter);
    /// The step behind one that was chained.
    virtual Paso_Envio Seguir();
    /// Milliseconds to wait for an answer; 0: none is expected.
    virtual int Plazo() const { return 0; }
    /// The time ran out.
    virtual Paso_Envio Vencer();

    /// What has been sent so far, in plain words.
    virtual QString Resumen() const = 0;
    /// Lines of the trace that an upload which breaks off here has not given yet.
    virtual QStringList Traza_Pendiente() const { return {}; }
    /// Box for a port that fails while it sends, an end of the upload; empty where the instrument's
    /// silence tells it.
    virtual QString Mensaje_De_Fallo() const { return {}; }
};
