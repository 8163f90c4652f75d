#pragma once

#include "formats/Dos_Listas.h"

#include <functional>
#include <QWidget>

class QListWidget;
class QPushButton;

/// The two lists of a format dialog (`List1`, `List2`) with the buttons between and beside them, over
/// the lists of its model. A change goes straight into the model.
class Panel_Campos : public QWidget {
    Q_OBJECT
public:
    /// @param subir, bajar  names of the two buttons that move a chosen field
    Panel_Campos(const QString& subir, const QString& bajar);

    /// Shows the lists of the model, which outlives the panel.
    void Atar(Dos_Listas* listas);
    /// @param de  how an available field is listed; without it, by its name
    void Rotular(const std::function<QString(const QString&)>& de) { rotulo = de; }
    /// Shows them anew.
    void Mostrar();
    /// Bars the changes; the fields can still be looked at.
    void Bloquear(bool bloqueado);

private:
    void Agregar();
    void Quitar();
    void Mover(int (Dos_Listas::*como)(const QList<int>&));

    Dos_Listas* listas = nullptr;
    std::function<QString(const QString&)> rotulo;
    QListWidget *List1, *List2;
    QPushButton *BtnAgregar, *BtnQuitar, *BtnSubir, *BtnBajar;
};
