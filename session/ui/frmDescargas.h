#pragma once

#include "core/ui/Ventana.h"
#include "session/Consultas_Sesion.h"

#include <functional>

class Modelo_Conjunto;
class QLabel;
class QTableView;

/// What the browser's buttons open on higher floors; the program hands it in.
struct Puertas_Descargas {
    /// Export ("E") or print ("I") of the session, if there is one, through a stored format.
    std::function<void(const std::optional<Sesion_Elegida>&, const QString& destino)>
        Formato_Existente;
    /// Export through a format made for it.
    std::function<void(const std::optional<Sesion_Elegida>&)> Formato_Nuevo;
    /// Raw export of a session.
    std::function<void(const Sesion_Elegida&)> Guardar_Bruto;
    /// The plan of a session's points, here and in `FrmDatos`.
    std::function<void(const Sesion_Elegida&)> Ver_Plano = [](const Sesion_Elegida&) {};
    /// Raw import.
    std::function<void()> Importar_Bruto;
    /// The plain raw dialogs, which stand in the grid's menu alone.
    std::function<void(const Sesion_Elegida&)> Exportar_En_Bruto, Exportar_A_Disco;
    /// Whether raw files hold the general records too; the grid's menu shows and changes it.
    std::function<bool()> Incluir_Generales;
    std::function<void(bool)> Poner_Incluir_Generales;
};
Puertas_Descargas& Puertas_De_Descargas();

/// Browser of the stored sessions of the family in force, the newest on top.
class frmDescargas : public Ventana {
    Q_OBJECT
public:
    frmDescargas();

    /// Reads the sessions again and stands on the first.
    void Refrescar();
    /// Export or print through a stored format. @param accion "E" or "I"
    void Exporta_o_Imprime_Formato_Existente(const QString& accion);
    /// Shows a line below the grid; an empty one takes it away.
    void Poner_Aviso(const QString& texto);

private:
    using Puerta = std::function<void(const Sesion_Elegida&)>;
    QWidget* Hacer_Botones();
    std::optional<Sesion_Elegida> Elegida() const;
    void BtnVerdatos_Click();
    void Con_Sesion(const Puerta& puerta);
    void Menu_De_Rejilla(const QPoint& lugar);
    void BtnEliminar_Click();

    Modelo_Conjunto* Data1;
    QTableView* DBGrid1;
    QLabel* LblAviso;
    QWidget* botonera;
};
