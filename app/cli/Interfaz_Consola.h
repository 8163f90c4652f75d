#pragma once

#include "app/cli/Ordenes.h"
#include "core/Interfaz.h"

#include <functional>

/// The program's talk on a console: messages on the error stream, a question answered by --si or
/// refused, and nothing that would need a person fails with its reason. In use while it lives.
class Interfaz_Consola : public Interfaz {
public:
    explicit Interfaz_Consola(const Contexto& contexto);
    ~Interfaz_Consola() override;

    using Respuesta_Fichero =
        std::function<std::optional<Fichero_Elegido>(const Peticion_Fichero&)>;
    /// Answers the file dialogs of an order that has been told the names.
    Respuesta_Fichero ficheros;

    void Mensaje(const QString& texto, Icono icono, const QString& titulo) override;
    bool Preguntar(const QString& texto, Icono icono, const QString& titulo) override;
    std::optional<QString> Pedir_Texto(const QString& titulo, const QString& texto,
                                       const QString& inicial) override;
    /// @throws Error_Ejecucion 52 without an answer: a flow that keeps asking must not loop on a console
    std::optional<Fichero_Elegido> Pedir_Fichero(const Peticion_Fichero& peticion) override;
    void Pitar() override {}
    void Cursor_Ocupado(bool) override {}
    void Proceso_Abrir(const QString& etiqueta, qint64 maximo) override;
    void Proceso_Etiqueta(const QString& etiqueta, qint64 maximo) override;
    void Proceso_Avanzar(qint64) override {}
    void Proceso_Cerrar() override {}
    void Repintar() override {}
    void Dejar_Pasar() override {}
    void Arrancar(const QString& programa, const QStringList& argumentos) override;
    void Ver_Texto(const QString&, bool) override {}
    void Terminar(int estado) override;

private:
    Contexto contexto;
    Interfaz* anterior;
};
