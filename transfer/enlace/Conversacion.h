#pragma once

#include "transfer/enlace/Puerto_Serie.h"

#include <memory>
#include <QObject>
#include <QPointer>

/// A place of the moving picture `Rayo`, in twips (15 to a pixel).
struct Lugar_Rayo {
    int izquierda, arriba;
};
/// Places of the picture in every transfer dialog.
inline constexpr int LUGARES_RAYO = 7;

/// The port half of a transfer in either direction, without widgets: the port with its box, its
/// loss and its settings, the label, the button and the picture of the dialog, and the rule that
/// one transfer runs at a time, whatever its dialog. What is sent or received, polled or waited for
/// is the business of the classes made of it. It lives as long as its dialog.
///
/// A class made of it hears the port in `Evento`, brackets its transfer with `Empezar` and
/// `Acabar`, and calls `Abandonar` in its destructor.
class Conversacion : public QObject {
    Q_OBJECT
public:
    explicit Conversacion(std::unique_ptr<Puerto_Serie> puerto, QObject* padre = nullptr);
    ~Conversacion() override;

    /// Enables `BtnIniciar` and opens the port of the settings; a port already open is reused as it
    /// is. While the dialog of another conversation has a port open, beeps and brings that one up.
    /// @return false then, and after the message of a port that can't be opened
    bool Abrir_Puerto();
    /// Closes the port if it is open; no event comes from it afterwards.
    void Cerrar_Puerto();
    /// What the dialog answers `closeEvent` with: the port is freed, a transfer under way ends
    /// there and then, and with it the wait it may be in.
    virtual void Abandonar();
    /// Before its dialog is closed: in mid-transfer the user is asked, and bytes and ticks wait
    /// meanwhile. @return false when the dialog has to stay
    bool Confirmar_Cierre();

    /// A transfer of this conversation began and has not ended.
    bool En_Marcha() const;
    bool Iniciar_Habilitado() const { return iniciar_habilitado; }
    QString Etiqueta() const { return etiqueta; }
    bool Rayo_Visible() const { return rayo_visible; }

Q_SIGNALS:
    void etiqueta_cambiada(const QString& texto);
    void iniciar_habilitado_cambiado(bool habilitado);
    void rayo_cambiado(bool visible);
    /// The picture goes to place `lugar` (0 to LUGARES_RAYO - 1) of its table.
    void rayo_movido(int lugar);
    /// The dialog hides (and stays loaded).
    void ocultar();
    /// The dialog is unloaded.
    void cerrar();
    /// The dialog is brought up: another transfer was asked for while this one runs.
    void reclamada();
    /// The transfer is over, one way or another.
    void terminada();

protected:
    /// One byte can be read. An error it throws goes to the run log: the port's events are silent.
    virtual void Evento() = 0;
    /// Begins a transfer. @return false when another runs, whose dialog is then brought up with a
    /// beep
    bool Empezar();
    /// Ends the transfer; tells it once. A class that has more to end does so first.
    virtual void Acabar();

    /// Sends; a failure goes to the run log, since a port that fails says so in the label (lost) or
    /// by the silence of the instrument.
    void Enviar(const QByteArray& bytes);
    /// Waits `ms` of the program's time and lets events through: the port's, the clicks, the close
    /// box. Ends at once when the transfer does. @return false then, and without a transfer; this
    /// object may be gone
    bool Esperar(int ms);

    void Poner_Etiqueta(const QString& texto);
    void Poner_Rayo(bool visible);
    void Poner_Habilitado(bool habilitado);
    /// The picture at its first place, without moving it.
    void Situar_Rayo() { lugar = 0; }
    /// The picture goes one place on, behind the last to the first.
    void Mover_Rayo();

    Puerto_Serie& El_Puerto() { return *puerto; }

    /// A box of this transfer stands while one of these lives: bytes and ticks wait, and the bytes
    /// are delivered behind it.
    class Caja_Abierta {
    public:
        explicit Caja_Abierta(Conversacion& conversacion);
        ~Caja_Abierta();
        Caja_Abierta(const Caja_Abierta&) = delete;
        Caja_Abierta& operator=(const Caja_Abierta&) = delete;

    private:
        QPointer<Conversacion> de;
    };
    bool En_Aviso() const { return cajas > 0; }

private:
    bool Reclamar_El_Puerto() const;

    std::unique_ptr<Puerto_Serie> puerto;
    int cajas = 0;
    QString etiqueta;
    int lugar = 0;
    bool iniciar_habilitado = true, rayo_visible = false;
};

/// The conversation whose transfer is under way, in whatever dialog; null when none is.
Conversacion* Transferencia_En_Curso();

/// Before a transfer is prepared: while another runs, beeps and brings that one's dialog up.
/// @return true when another runs
bool Reclamar_La_En_Curso();
