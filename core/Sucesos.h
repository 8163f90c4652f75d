#pragma once

#include <QObject>

/// What one dialog tells all others, so that none has to know who opened it.
class Sucesos : public QObject {
    Q_OBJECT
public:
    static Sucesos& Unico();

Q_SIGNALS:
    /// `Clave_Estacion` or `Nombre_Estacion` changed, or the model's row was read anew.
    void modelo_cambiado();
    /// `Cargar_Estacion(valor)` ran: "Códigos" of the toolbar is enabled unless it is the level.
    void estacion_cargada(const QString& valor);
    /// The settings were written; an open port closes and takes the new ones.
    void ajustes_guardados();
    /// A session was stored, changed or deleted.
    void sesiones_cambiadas();
    /// An upload has ended, one way or another; `cuenta` says in plain words how far it came.
    void envio_acabado(const QString& cuenta);
    /// A format was stored, changed or deleted.
    void formatos_cambiados();
    /// A code library was stored, changed or deleted.
    void librerias_cambiadas();
    /// The database was closed and opened again: cached rows no longer hold.
    void base_reabierta();

private:
    Sucesos() = default;
};
