#pragma once

#include "core/ui/Ventana.h"
#include "formats/Modelo_Formato.h"

class Panel_Campos;
class QCheckBox;
class QFormLayout;
class QLineEdit;

/// What the dialogs over a format share: labelled boxes on top, the two lists with their buttons,
/// check boxes and a row of buttons below. A dialog makes its own pieces, lays them out with the
/// routines here and shows a model with `Mostrar_Modelo`.
class Dialogo_Formato : public Ventana {
    Q_OBJECT
protected:
    struct Renglon {
        QString rotulo;
        QWidget* pieza;
    };

    /// Makes `TxtDes` and the panel.
    /// @param subir, bajar  names of the two buttons that move a chosen field
    Dialogo_Formato(const QString& nombre, const QString& titulo, const QString& subir = "Btnsubir",
                    const QString& bajar = "BtnBajar");

    /// The labelled boxes, one a line.
    static QFormLayout* Poner_Renglones(const QList<Renglon>& renglones, QWidget* marco = nullptr);
    /// `Check1`, the titles, for the dialogs that have it; its changes go into the model.
    QCheckBox* Hacer_Cabeceras();
    /// The layout of a dialog that ends with `BtnAceptar`: boxes, panel, a line of check boxes and
    /// what else tells of the format, `BtnAceptar`, `BtnCancelar`, `btnAyuda`.
    /// @param ayuda  page of the web help
    void Armar(const QList<Renglon>& renglones, const QList<QWidget*>& casillas,
               const QString& ayuda);

    /// Shows the model modally over its lists; it outlives the call.
    /// @param primera  the control that gets the focus
    void Mostrar_Modelo(Modelo_Formato& de, QWidget& primera);
    /// While a dialog fills its controls: what they signal is no change by the user.
    void Soltar_Modelo() { en_uso = nullptr; }
    /// The model shown; null while there is none.
    Modelo_Formato* Modelo() const { return en_uso; }

    /// Shows what the model holds now.
    virtual void Mostrar_Datos() = 0;
    /// `BtnAceptar` was refused and the dialog stays.
    virtual void Al_Rechazar() {}

    QLineEdit* TxtDes;
    Panel_Campos* panel;

private:
    void BtnAceptar_Click();

    Modelo_Formato* en_uso = nullptr;
};
