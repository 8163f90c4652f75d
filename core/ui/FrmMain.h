#pragma once

#include <functional>
#include <QHash>
#include <QMainWindow>
#include <QPixmap>
#include <QStringList>

class QAction;
class QLabel;
class QMenu;
class Area_Ventanas;

/// Main window: menu, toolbar, status bar, and the area in which the dialogs live. It only opens
/// dialogs; what an entry does is handed in by the program, since most dialogs belong to higher
/// floors. An entry that nobody took says that it is not there yet.
class FrmMain : public QMainWindow {
    Q_OBJECT
public:
    FrmMain();
    ~FrmMain() override;

    /// @param entrada  name of a menu control, or "Toolbar1(n)" with the button's index from 1
    void Al_Elegir(const QString& entrada, std::function<void()> accion);
    /// Names of all entries that do something.
    QStringList Entradas() const;

    /// Puts the picture behind the dialogs; a file that is missing leaves the area plain.
    void Poner_Fondo(const QString& fichero);

    /// Shows the model picker without blocking.
    void Mostrar_FrmKRT();
    /// Shows the settings on their second tab; as they stand.
    void Mostrar_Frmutils_Ayuda();
    void Mostrar_Frmutils();

protected:
    void closeEvent(QCloseEvent* evento) override;

private:
    void Hacer_Menu();
    void Hacer_Toolbar();
    void Acciones_Propias();
    QMenu* Menu(QMenu* padre, const QString& nombre, const QString& titulo);
    void Entrada(QMenu* menu, const QString& nombre, const QString& titulo, int indice = 0);
    void Boton(int indice, const QString& dibujo, const QString& titulo, const QString& consejo);
    void Elegida(const QString& entrada, const QString& titulo);
    void Mosaico();
    void Rehacer_Panel();

    Area_Ventanas* area;
    QLabel* panel;
    QHash<QString, QAction*> acciones;
    QStringList orden;
    QHash<QString, std::function<void()>> hechos;
};
