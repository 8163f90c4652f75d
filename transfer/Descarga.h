#pragma once

#include "transfer/Diario_Recepcion.h"
#include "transfer/Proceso_Recepcion.h"
#include "transfer/Puerto_Serie.h"
#include "transfer/Recepcion.h"

#include <QObject>
#include <QStringList>
#include <QTimer>
#include <memory>

/// A place of the moving picture `Rayo`, in twips (15 to a pixel).
struct Lugar_Rayo {
    int izquierda, arriba;
};
inline constexpr Lugar_Rayo LUGARES_RAYO_DESCARGA[7] = {{780, 1080},  {1140, 1055}, {1380, 1020},
                                                        {1620, 950},  {1860, 860},  {2100, 805},
                                                        {2280, 805}};

/// The conversation of a download, without widgets: what `FrmSplash` shows and does. The dialog and
/// the command-line tool drive the same object; it lives as long as its dialog, its counters with it.
///
/// Start: `Preparar(...)`, `Abrir_Puerto()`, then `BtnIniciar()`. From there the port's events and
/// the 500 ms poll lead to the end: `Saltar_a_Sesiones` after the end of data, or the cable error at
/// the tenth poll. After the first byte there is no time-out at all.
class Descarga : public QObject {
    Q_OBJECT
public:
    explicit Descarga(std::unique_ptr<Puerto_Serie> puerto, QObject* padre = nullptr);
    ~Descarga() override;

    /// What the routing hands over before the dialog is shown; family and model are kept for the
    /// whole transfer, whatever model is chosen meanwhile.
    void Preparar(int operacion, const QString& nombre, int destino = 0);
    /// Enables `BtnIniciar` and opens the port of the settings; a port already open is reused as it
    /// is. @return false after its message
    bool Abrir_Puerto();
    /// Closes the port if it is open; no event comes from it afterwards.
    void Cerrar_Puerto();

    /// The button: polls, begins the waiting and takes what already waits in the port.
    void BtnIniciar();
    /// One tick of the 500 ms timer.
    void Tic();
    /// End of the reception: closes the port, stores, and moves on to the sessions.
    void Saltar_a_Sesiones();

    /// A transfer began and has not ended.
    bool En_Marcha() const { return en_marcha; }
    bool Iniciar_Habilitado() const { return iniciar_habilitado; }
    QString Etiqueta() const { return etiqueta; }
    bool Rayo_Visible() const { return rayo_visible; }
    /// Ticks counted; never cleared at the start of a transfer, so a dialog that stays loaded waits
    /// less the next time, and a count past 10 never fires again.
    int Intentos() const { return intentos; }
    /// Sessions that the last reception made, and whether all of it was stored.
    const Resultado_Recepcion& Resultado() const { return resultado; }

    /// What the dialog answers `closeEvent` with: the port is freed, the journal stays if bytes came.
    void Abandonar();

Q_SIGNALS:
    void etiqueta_cambiada(const QString& texto);
    void iniciar_habilitado_cambiado(bool habilitado);
    void rayo_cambiado(bool visible);
    /// The picture goes to place `lugar` (0 to 6) of its table.
    void rayo_movido(int lugar);
    /// The dialog hides (and stays loaded).
    void ocultar();
    /// The dialog is unloaded.
    void cerrar();
    /// The user lands on the list of sessions, on its first row.
    void mostrar_sesiones();
    /// The transfer is over, one way or another.
    void terminada();

private:
    void Preparar_Dialogo();
    void Evento();
    void Recibir_Byte();
    void Mover_Rayo();
    void Error_De_Cable();
    void Poner_Etiqueta(const QString& texto);
    void Poner_Rayo(bool visible);
    void Poner_Habilitado(bool habilitado);
    void Enviar(const QByteArray& bytes);
    void Procesar();
    void Terminar();

    std::unique_ptr<Puerto_Serie> puerto;
    const Salida_Recepcion comm;
    Diario_Recepcion diario;
    QTimer timer1;
    Datos_Recepcion datos;
    Resultado_Recepcion resultado;
    QString etiqueta;
    int intentos = 0, eventos = 0, lugar = 0;
    bool iniciar_habilitado = true, rayo_visible = false;
    bool en_marcha = false, en_aviso = false, procesando = false;
};
