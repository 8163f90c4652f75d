#pragma once

#include <QDateTime>
#include <QElapsedTimer>
#include <QFile>
#include <QObject>
#include <QString>
#include <QTimer>

/// Journal of a reception: every byte as the instrument sent it, in a file of its own under LOG. It
/// goes when every byte is accounted for and stays otherwise, so that no pulled cable, closed
/// dialog, full disk or killed process costs a day's field work.
///
/// The file is called recepcion_YYYYMMDD_HHMMSS_KEY_OPE.dia (a number behind a hyphen where that
/// name is taken), holds the bytes alone, and is marked as in use while the reception runs. All
/// bytes are kept in memory too, for as long as the reception lasts: what could not be written can
/// still be written elsewhere.
class Diario_Recepcion : public QObject {
    Q_OBJECT
public:
    explicit Diario_Recepcion(QObject* padre = nullptr);
    /// What was noted goes to the disk; the file stays.
    ~Diario_Recepcion() override;

    /// Begins a reception; the file is made with its first byte. One still open is closed and
    /// stays.
    void Empezar(const QString& maquina, int operacion, const QDateTime& momento);
    /// Notes one received byte; handed to the system at the next turn of the loop at the latest, and
    /// on the disk half a second later at the latest.
    void Anotar_Byte(char c);
    /// Hands what was noted to the system, so that a killed process loses none of it: to be called
    /// before it is acknowledged. @return false when that failed; it is tried again with the next
    /// bytes
    bool Entregar();
    /// The same, and waits for the disk.
    bool Al_Disco();
    /// Ends the reception. @param guardada  every byte is accounted for: the file goes. It goes too
    /// when nothing but end-of-transmission marks came.
    /// @return false when something was to be kept and could not be written; `Guardar_En` still can
    bool Terminar(bool guardada);

    /// Writes a reception that could not be kept under its own name into another folder.
    /// @return the file. @throws Error_Ejecucion as `Ficheros::Escribir`
    QString Guardar_En(const QString& carpeta);

    /// Why the last attempt to write failed; empty when it didn't.
    QString Fallo() const { return fallo; }
    /// Path of the file under way; empty without one.
    QString Fichero() const { return fichero.fileName(); }
    /// Path of what the last reception left, empty when it left nothing.
    QString Conservado() const { return conservado; }

    /// Tries whether a journal can be written. @return why not; empty when it can
    static QString Impedimento();

Q_SIGNALS:
    /// `Fallo` has changed.
    void fallo_cambiado();

private:
    bool Abrir();
    void Poner_Fallo(const QString& motivo);
    QString Nombre_En(const QString& carpeta) const;

    QString maquina;
    int operacion = 0;
    QDateTime momento;
    QFile fichero;
    QByteArray bytes;
    qsizetype entregados = 0;
    QTimer entrega, al_disco;
    QElapsedTimer sin_sincronizar;
    QString fallo, conservado, incompleto;
    bool empezado = false, con_datos = false;
};
