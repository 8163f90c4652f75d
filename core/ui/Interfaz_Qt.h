#pragma once

#include "core/Interfaz.h"

#include <functional>

/// The user's door made of windows.
class Interfaz_Qt : public Interfaz {
public:
    Interfaz_Qt();
    ~Interfaz_Qt() override;

    /// Opens the text viewer; it belongs to a higher floor, so the program hands it in.
    std::function<void(const QString& fichero, bool fija)> visor;

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
    /// Hides every window and makes all event loops return, the inner ones first: what runs ends in
    /// its own order, so no transaction and no journal is cut in the middle.
    void Terminar(int estado) override;

    bool Terminada() const override { return terminada; }
    int Estado() const { return estado_final; }

private:
    QString ultima_carpeta;
    int procesos = 0;
    bool terminada = false;
    int estado_final = 0;
};

/// File dialog filters of a filter text "descripción|patrón|…": one entry a pair, the pattern in
/// parentheses behind the description unless it stands there already. A text without pairs gives
/// one entry that no file matches.
QStringList Filtros_De_Dialogo(const QString& filtro);
