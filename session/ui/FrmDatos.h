#pragma once

#include "core/ui/Ventana.h"
#include "session/ModVDatos.h"

class Modelo_Lista;
class QTableView;
class QTableWidget;

/// The raw lines of a session, and below them the general data in force for the
/// current one.
class FrmDatos : public Ventana {
    Q_OBJECT
public:
    FrmDatos();

    /// Shows a session modally.
    void Ver(const Sesion_Elegida& sesion, const Vista_Datos& vista);
    /// Opens the current line in `FrmEditar`, or fills it anew where it is open.
    void BtnOperaciones_Click();
    /// Moves to the next (1) or previous (-1) line; at the end it says so and
    /// stays.
    /// @return true when it moved
    bool Mover(int paso);

private:
    void Data1_Reposition();

    Sesion_Elegida sesion_vista;
    std::unique_ptr<Visor_Registros> visor; // of that session
    Modelo_Lista* Data1;
    QTableView* DBGrid1;
    QTableWidget* MSF;
};
