#pragma once

#include <QDateTime>
#include <QFile>
#include <QObject>
#include <QString>
#include <QTimer>

/// Journal of a reception: every byte as the instrument sent it, in a file of its own under LOG. It
/// goes when the session is stored whole and stays otherwise, so that no pulled cable, closed
/// dialog, full disk or killed process costs a day's field work.
///
/// The file is called recepcion_YYYYMMDD_HHMMSS_KEY_OPE.dia (a number behind a hyphen where that
/// name is taken) and holds the bytes alone.
class Diario_Recepcion : public QObject {
    Q_OBJECT
public:
    explicit Diario_Recepcion(QObject* padre = nullptr);
    /// What was noted goes to the disk; the file stays.
    ~Diario_Recepcion() override;

    /// Begins a reception; the file is made with its first byte. One still open is closed and
    /// stays.
    void Empezar(const QString& maquina, int operacion, const QDateTime& momento);
    /// Notes one received byte; on the disk at most half a second later while events are served. A
    /// write that fails is tried again with the next ones and never disturbs the reception.
    void Anotar_Byte(char c);
    /// Ends the reception. @param guardada  the session is stored and on the disk: the file goes.
    /// It goes too when nothing but end-of-transmission marks came.
    void Terminar(bool guardada);
    /// Writes what is pending and waits for the disk. @return false when that failed
    bool Al_Disco();

    /// Path of the file under way; empty without one.
    QString Fichero() const { return fichero.fileName(); }

private:
    bool Abrir();

    QString maquina;
    int operacion = 0;
    QDateTime momento;
    QFile fichero;
    QByteArray pendiente;
    QTimer al_disco;
    bool empezado = false, con_datos = false, fallo_anotado = false;
};
