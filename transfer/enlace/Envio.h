#pragma once

#include "core/Familia.h"
#include "transfer/enlace/Conversacion.h"
#include "transfer/enlace/Emisor.h"

#include <QElapsedTimer>
#include <QTimer>

inline constexpr Lugar_Rayo LUGARES_RAYO_ENVIO[LUGARES_RAYO] = {
    {1320, 730}, {1560, 750}, {1860, 820}, {2100, 900}, {2280, 960}, {2580, 1020}, {2880, 1070}};

/// How an upload ended.
struct Resultado_Envio {
    bool hecho = false;
    QString resumen; ///< what was sent, refused and repeated, and the seconds; empty: nothing began
};

/// The conversation of an upload, without widgets: what `Frmsplash1` shows and does, over the
/// `Emisor` of the family.
///
/// Start: `Preparar(...)`, `Inicia_Envio(...)`, then `BtnIniciar()`, which opens the port. A KRT300
/// is driven by the port's events and the time-out; a KRT800 keeps `BtnIniciar` until all is sent.
/// The end closes the port and the dialog. An instrument that goes on refusing ends the upload
/// without a box: the label says so and the dialog stays.
class Envio : public Conversacion {
    Q_OBJECT
public:
    explicit Envio(std::unique_ptr<Puerto_Serie> puerto, QObject* padre = nullptr);
    ~Envio() override;

    /// What the routing hands over before the dialog is shown; the family is kept for the whole
    /// upload.
    void Preparar(const QString& cabecera, const QString& datos);
    /// Makes the dialog wait for its button; its dialog is shown next.
    /// @param tipo  1 coordinates, 2 code library; a KRT800 gets the operation number
    void Inicia_Envio(int tipo);
    /// `Check1`: the upload leaves a trace.
    void Poner_Seguimiento(bool si) { seguimiento = si; }

    /// The button: opens the port and sends.
    void BtnIniciar();
    /// One tick of the time-out.
    void Tic();
    /// The trace tells how far it came.
    void Abandonar() override;

    qint64 Barra() const { return barra; }
    qint64 Maximo() const { return maximo; }
    const Resultado_Envio& Resultado() const { return resultado; }

Q_SIGNALS:
    void barra_cambiada(qint64 valor, qint64 maximo);
    /// What has been sent so far, in plain words.
    void cuenta_cambiada(const QString& texto);

protected:
    void Evento() override;

private:
    void Hacer(Paso_Envio paso);
    bool Mandar(const QByteArray& bytes);
    void Terminar(Fin_Envio fin);
    void Cerrar_Cuenta(bool hecho);
    void Poner_Barra(qint64 valor, qint64 tope);
    void Contar();
    void Empezar_Traza();
    void Trazar(const QStringList& lineas);

    const Familia* familia;
    std::unique_ptr<Emisor> emisor;
    Datos_Envio datos;
    Resultado_Envio resultado;
    QTimer timer1;
    QElapsedTimer cronometro;
    QString traza; ///< file name of the trace under way; empty: none
    qint64 barra = 0, maximo = 0;
    bool seguimiento = false;
};
