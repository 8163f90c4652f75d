#pragma once

#include "core/ui/Ventana.h"

#include <map>

class QCheckBox;
class QComboBox;
class QLabel;
class QTabWidget;
struct Combo_Ajustes;

/// Settings. Closing hides it: its edits stay until they are accepted or the run ends.
class Frmutils : public Ventana {
    Q_OBJECT
public:
    Frmutils();

    /// Shows tab 0 (communications) or 1 (other options).
    void Pestana(int indice);
    /// Refills the speeds from a comma list and takes the one in force, else the first.
    void Cargar_Combo1(const QString& lista);

private:
    QWidget* Hacer_Comunicaciones();
    QWidget* Hacer_Opciones();
    QWidget* Hacer_Base();
    void Cargar();
    static void Llenar(QComboBox& combo, const Combo_Ajustes& ajustes);
    void Combo6_Click();
    void Command2_Click();

    QTabWidget* SSTab1;
    // By their names, those of the table of settings.
    std::map<QString, QComboBox*> combos;
    std::map<QString, QCheckBox*> casillas;
    QLabel* Animation1;
};
