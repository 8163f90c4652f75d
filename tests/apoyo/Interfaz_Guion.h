#pragma once

#include "core/Interfaz.h"

#include <deque>
#include <functional>
#include <QList>
#include <QString>

/// The scripted interface: every call is recorded, answers are queued beforehand, and a call
/// without an answer fails the test; so does, at its end, an answer that nobody asked for or a box
/// that the test never looked at. Puts itself in use while it lives.
class Interfaz_Guion : public Interfaz {
public:
    Interfaz_Guion();
    ~Interfaz_Guion() override;

    struct Aviso {
        QString texto;
        Icono icono = Icono::Ninguno;
        QString titulo;
    };
    /// Boxes in order. Whoever asks for any of them, or for their number, has looked at all that
    /// there are by then.
    class Lista_Avisos {
    public:
        void append(const Aviso& aviso) { lista.append(aviso); }
        void clear()
        {
            lista.clear();
            miradas = 0;
        }
        qsizetype size() const { return Mirar().size(); }
        bool isEmpty() const { return Mirar().isEmpty(); }
        const Aviso& operator[](qsizetype i) const { return Mirar()[i]; }
        const Aviso& at(qsizetype i) const { return Mirar().at(i); }
        Aviso value(qsizetype i) const { return Mirar().value(i); }
        const Aviso& first() const { return Mirar().constFirst(); }
        const Aviso& last() const { return Mirar().constLast(); }
        const Aviso& constFirst() const { return first(); }
        const Aviso& constLast() const { return last(); }
        QList<Aviso> mid(qsizetype desde) const { return Mirar().mid(desde); }
        auto begin() const { return Mirar().constBegin(); }
        auto end() const { return Mirar().constEnd(); }
        /// Texts of the boxes that nobody has looked at.
        QStringList Sin_Mirar() const;

    private:
        const QList<Aviso>& Mirar() const
        {
            miradas = lista.size();
            return lista;
        }
        QList<Aviso> lista;
        mutable qsizetype miradas = 0;
    };
    /// Message boxes and questions shown.
    Lista_Avisos avisos;
    /// The texts alone.
    QStringList Textos() const;

    /// Queued answers, taken from the front.
    std::deque<bool> respuestas;
    std::deque<std::optional<QString>> textos;
    std::deque<std::optional<Fichero_Elegido>> ficheros;
    /// What was asked.
    QList<Peticion_Fichero> peticiones;
    QStringList preguntas_texto; ///< "título|texto|inicial"

    int pitidos = 0;
    int cursor = 0; ///< busy cursors open
    int repintados = 0, pasos = 0;
    QStringList procesos; ///< labels that FrmProc showed
    qint64 proceso_valor = 0, proceso_maximo = 0;
    int procesos_abiertos = 0;
    QStringList arrancados; ///< programs started, arguments behind a "|"
    QStringList vistos;     ///< files opened in the text viewer
    QList<int> terminado;   ///< statuses of Terminar
    /// Runs at every `Dejar_Pasar` and `Proceso_Avanzar`: a test cancels or re-enters from here.
    std::function<void()> al_pasar;
    /// Runs at every message box and question, while it "stands".
    std::function<void(const Aviso&)> al_avisar;

    void Mensaje(const QString& texto, Icono icono, const QString& titulo) override;
    bool Preguntar(const QString& texto, Icono icono, const QString& titulo) override;
    std::optional<QString> Pedir_Texto(const QString& titulo, const QString& texto,
                                       const QString& inicial) override;
    std::optional<Fichero_Elegido> Pedir_Fichero(const Peticion_Fichero& peticion) override;
    void Pitar() override;
    void Cursor_Ocupado(bool ocupado) override;
    void Proceso_Abrir(const QString& etiqueta, qint64 maximo) override;
    void Proceso_Etiqueta(const QString& etiqueta, qint64 maximo) override;
    void Proceso_Avanzar(qint64 valor) override;
    void Proceso_Cerrar() override;
    void Repintar() override;
    void Dejar_Pasar() override;
    void Arrancar(const QString& programa, const QStringList& argumentos) override;
    void Ver_Texto(const QString& fichero, bool fija) override;
    void Terminar(int estado) override;
    bool Terminada() const override { return !terminado.isEmpty(); }

private:
    Interfaz* anterior;
};
