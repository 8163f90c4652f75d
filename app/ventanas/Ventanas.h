#pragma once

#include "core/Arranque.h"
#include "core/ui/Interfaz_Qt.h"

#include <memory>

class FrmMain;

/// Ties the floors' dialogs to the requests of their logic, and the text viewer to the user's door.
void Conectar_Dialogos(Interfaz_Qt& interfaz);

/// Gives the entries of the main window what they do.
void Conectar_Entradas(FrmMain& principal);

/// The windows of the start-up.
class Arranque_Qt : public Ventanas_Arranque {
public:
    Arranque_Qt();
    ~Arranque_Qt() override;

    void Crear_Principal() override;
    void Puntero_De_Espera(bool espera) override;
    QSize Pantalla() const override;
    void Poner_Logo(const QString& fichero) override;
    void Mostrar_Portada() override;
    void Quitar_Portada() override;
    void Mostrar_Principal() override;
    void Pedir_Modelo() override;

    FrmMain& Principal() { return *principal; }

private:
    std::unique_ptr<FrmMain> principal;
};
