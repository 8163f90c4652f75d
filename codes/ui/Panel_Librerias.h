#pragma once

#include "codes/Mantenimiento_Librerias.h"

#include <functional>
#include <QGroupBox>

class QComboBox;
class QGridLayout;
class QLabel;
class QLineEdit;
class QPushButton;
class QVBoxLayout;

/// The upper half of both library dialogs: which library is shown, and the buttons that deal with
/// it as a whole.
class Panel_Librerias : public QGroupBox {
    Q_OBJECT
public:
    /// @param refrescar  shows the model anew; called after every button
    Panel_Librerias(Mantenimiento_Librerias& modelo, std::function<void()> refrescar);

    /// Shows the list and the current library. @param nombres  entries of `Combo1`
    void Mostrar(const QStringList& nombres, const QString& tag);
    /// One more button behind the others.
    void Anadir_Boton(QPushButton* boton, std::function<void()> accion);

private:
    void Hacer_Botones();
    void Combo1_Click(int entrada);

    Mantenimiento_Librerias& modelo;
    std::function<void()> refrescar;
    QComboBox* Combo1;
    QLabel *LblCod, *lblDes;
    QGridLayout* botones;
    int puestos = 0;
};

/// The box in which a code is looked for: each letter goes to the first that holds what was typed,
/// Enter to the next.
QLineEdit* Caja_De_Busqueda(QWidget* dialogo, Mantenimiento_Librerias& modelo,
                            const std::function<void()>& refrescar);

/// A column of buttons at the side of the codes.
struct Boton_De_Codigos {
    const char16_t *nombre, *texto, *consejo;
    std::function<void()> accion;
};
/// @param refrescar  called after each of them
QVBoxLayout* Columna_De_Botones(QWidget* dialogo, const QList<Boton_De_Codigos>& botones,
                                const std::function<void()>& refrescar);
