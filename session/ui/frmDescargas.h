#pragma once

#include "core/ui/Ventana.h"
#include "session/Consultas_Sesion.h"

#include <functional>

class Modelo_Conjunto;
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

private:
    QWidget* Hacer_Botones();
    std::optional<Sesion_Elegida> Elegida() const;
    void BtnVerdatos_Click();
    void BtnExpBru_Click();
    void BtnEliminar_Click();
    void BtnPlano_Click();

    Modelo_Conjunto* Data1;
    QTableView* DBGrid1;
};
