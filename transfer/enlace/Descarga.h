#pragma once

#include "core/Familia.h"
#include "transfer/enlace/Conversacion.h"
#include "transfer/enlace/Diario_Recepcion.h"
#include "transfer/enlace/Recepcion.h"
#include "transfer/enlace/Receptor.h"

#include <QTimer>

inline constexpr Lugar_Rayo LUGARES_RAYO_DESCARGA[LUGARES_RAYO] = {
    {780, 1080}, {1140, 1055}, {1380, 1020}, {1620, 950}, {1860, 860}, {2100, 805}, {2280, 805}};

/// The conversation of a download, without widgets: what `FrmSplash` shows and does. The dialog and
/// the command-line tool drive the same object; its counters live with it.
///
/// Start: `Preparar(...)`, `Abrir_Puerto()`, then `BtnIniciar()`. From there the port's events and
/// the 500 ms poll lead to the end: `Saltar_a_Sesiones` after the end of data, or the cable error
/// at the tenth poll. After the first byte there is no time-out at all.
class Descarga : public Conversacion {
    Q_OBJECT
public:
    explicit Descarga(std::unique_ptr<Puerto_Serie> puerto, QObject* padre = nullptr);
    ~Descarga() override;

    /// What the routing hands over before the dialog is shown; family and model are kept for the
    /// whole transfer, whatever model is chosen meanwhile.
    void Preparar(int operacion, const QString& nombre, int destino = 0);

    /// The first byte begins the reception as well, without the button.
    void Atender_Sin_Boton() { sin_boton = true; }

    /// The button: polls, begins the waiting and takes what already waits in the port.
    void BtnIniciar();
    /// One tick of the 500 ms timer.
    void Tic();
    /// End of the reception: closes the port, stores, and moves on to the sessions.
    void Saltar_a_Sesiones();
    /// The journal stays if bytes came.
    void Abandonar() override;

    /// Ticks counted; never cleared at the start of a transfer, so a dialog that stays loaded waits
    /// less the next time, and a count past 10 never fires again.
    int Intentos() const { return intentos; }
    /// What the transfer under way has accepted so far; empty without one.
    QString Recibido() const { return receptor ? receptor->Buffer() : QString(); }
    /// Sessions that the last reception made, and whether all of it was stored.
    const Resultado_Recepcion& Resultado() const { return resultado; }

Q_SIGNALS:
    /// The user lands on the list of sessions, on its first row.
    void mostrar_sesiones();

protected:
    void Evento() override;
    void Acabar() override;

private:
    void Preparar_Dialogo();
    bool Empezar_Recepcion();
    void Recibir_Byte();
    void Error_De_Cable();
    void Procesar();

    const Familia* familia;
    std::unique_ptr<Receptor> receptor;
    Diario_Recepcion diario;
    QTimer timer1;
    Datos_Recepcion datos;
    Resultado_Recepcion resultado;
    int intentos = 0, eventos = 0;
    bool en_aviso = false, procesando = false, sin_boton = false;
};
