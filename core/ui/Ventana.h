#pragma once

#include <QDialog>
#include <QList>
#include <QPointer>

class QAbstractButton;
class QMdiArea;
class QMdiSubWindow;
class QPushButton;

/// Base of every dialog. A dialog is one shared instance (`Dialogos.h`) with three ways to go:
/// shown modelessly it is a child of the main window's area, shown modally a window of its own, and
/// hidden it keeps its contents. Only unloading ends it; the next use then makes a new one.
class Ventana : public QDialog {
    Q_OBJECT
public:
    ~Ventana() override;

    /// Shows it in the main window's area, or brings it up again if it is there already.
    void Mostrar();
    /// Shows it modally and returns once it has been hidden or unloaded. A dialog that is up
    /// modally is only brought up: who refills it does not wait a second time.
    void Mostrar_Modal();
    /// Hides it; its controls keep what they hold.
    void Ocultar();
    /// Unloads it: it is gone for `Dialogos` at once and destroyed when its handlers have ended.
    void Descargar();
    bool Descargada() const { return descargada; }

    /// What stands on the screen: the child window around it in the area, or the dialog itself.
    QWidget* Marco();
    const QWidget* Marco() const;

    /// All dialogs loaded at present.
    static const QList<Ventana*>& Cargadas();
    /// Where modeless dialogs live. Without one (tests) they are windows of their own.
    static void Poner_Area(QMdiArea* area);
    static QMdiArea* Area();

protected:
    explicit Ventana(const QString& nombre);

    /// The dialog restores its place from this section of the position file when it is first shown
    /// and stores it when it is unloaded (`modo` as in core/Posicion.h).
    void Recordar_Posicion(const QString& seccion, int modo);
    /// Enter presses `aceptar` (or the button that has the focus), Escape presses `cancelar`;
    /// without `aceptar` Enter presses nothing, without `cancelar` Escape unloads.
    void Poner_Botones(QPushButton* aceptar, QAbstractButton* cancelar);
    /// Places the dialog the first time it is shown; the general rule leaves it to the system.
    virtual void Colocar() {}
    /// Each time the dialog comes to the front.
    virtual void Al_Activarse() {}
    /// Before a dialog that is on the screen is unloaded: it may ask. @return false when it stays
    virtual bool Consiente_Cerrar() { return true; }
    /// What the dialog does when it is unloaded, its controls still standing.
    virtual void Al_Descargar() {}

    bool event(QEvent* evento) override;
    void closeEvent(QCloseEvent* evento) override;
    void reject() override;

private:
    void Soltar_Marco();
    void Situar();

    QPointer<QMdiSubWindow> subventana;
    QPointer<QAbstractButton> boton_cancelar;
    QString seccion_posicion;
    int modo_posicion = 0;
    bool situada = false;
    bool descargada = false;
    bool en_espera = false;
};

/// Places a window's frame horizontally in the middle of what it lies on: the area for a child, the
/// main window for one of its own.
void Centrar_Horizontal(Ventana& ventana);
