#pragma once

#include <initializer_list>
#include <QString>

class QCheckBox;
class QComboBox;
class QGroupBox;
class QHBoxLayout;
class QLabel;
class QLineEdit;
class QListWidget;
class QPushButton;
class QToolButton;
class QWidget;

/// The controls that the dialogs are made of, each with its name. The caller's layout owns them.
namespace Piezas {

QPushButton* Boton(const QString& nombre, const QString& texto, const QString& consejo = {});
/// A button that shows a picture of the install directory, or `texto` when there is none.
/// @param dibujo  file name below `bmp`
QPushButton* Boton_Dibujo(const QString& nombre, const QString& dibujo, const QString& texto,
                          const QString& consejo = {});
/// @param nombre  empty for a label that nothing refers to
QLabel* Rotulo(const QString& texto, const QString& nombre = {});
/// @param maximo  most characters that the box takes: the width of its column; 0 for no limit
QLineEdit* Caja(const QString& nombre, int maximo = 0);
QComboBox* Combo(const QString& nombre);
QCheckBox* Casilla(const QString& nombre, const QString& texto);
QGroupBox* Grupo(const QString& titulo, const QString& nombre = {});
/// A list that takes several selections.
QListWidget* Lista(const QString& nombre);
/// A label that shows pictures.
QLabel* Imagen(const QString& nombre, int ancho, int alto);

/// The row of buttons at the foot of a dialog, at its right.
QHBoxLayout* Fila_De_Botones(std::initializer_list<QPushButton*> botones);

/// Shows the picture of a file in a label, scaled down to it; clears it when there is none.
/// @return true if a picture is shown
bool Poner_Imagen(QLabel& imagen, const QString& fichero);
/// The tab key goes through the controls in this order.
void Orden(std::initializer_list<QWidget*> piezas);
/// The index of a combo's first item with that text; -1 when there is none.
int Indice_De(const QComboBox& combo, const QString& texto);

/// What the program says of an entry whose dialog is not built yet.
QString Texto_No_Disponible(const QString& que);

} // namespace Piezas
