#include "formats/ui/FrmNuevoformato.h"

#include "core/ui/Piezas.h"
#include "formats/ui/Panel_Campos.h"

#include <QCheckBox>
#include <QComboBox>
#include <QKeyEvent>
#include <QLineEdit>
#include <QSignalBlocker>

namespace {

// A combo that tells a typed name from a picked one. Enter in the box, or leaving it, would take
// the list's entry of the same name for picked: a typed name is a new format's also there.
class Combo_Nombre : public QComboBox {
public:
    Combo_Nombre()
    {
        setObjectName(QStringLiteral("Txt"));
        setSizeAdjustPolicy(QComboBox::AdjustToContents);
        setEditable(true);
        setInsertPolicy(QComboBox::NoInsert);
        setCompleter(nullptr);
        lineEdit()->setMaxLength(ANCHO_NOMBRE);
        connect(lineEdit(), &QLineEdit::textEdited, this, [this] { tecleado = true; });
    }
    bool Tecleado() const { return tecleado; }
    void showPopup() override
    {
        tecleado = false;
        QComboBox::showPopup();
    }

protected:
    void keyPressEvent(QKeyEvent* evento) override
    {
        if (evento->key() == Qt::Key_Up || evento->key() == Qt::Key_Down) tecleado = false;
        QComboBox::keyPressEvent(evento);
    }
    void wheelEvent(QWheelEvent* evento) override
    {
        tecleado = false;
        QComboBox::wheelEvent(evento);
    }

private:
    bool tecleado = false;
};

} // namespace

FrmNuevoformato::FrmNuevoformato() : FrmNuevoformato(QStringLiteral("FrmNuevoformato"))
{
    Montar();
}

FrmNuevoformato::FrmNuevoformato(const QString& nombre)
    : Dialogo_Formato(nombre, "Crear formato nuevo")
{
    Txt = new Combo_Nombre;
    CbTipo = Piezas::Combo("CbTipo");
    Check1 = Hacer_Cabeceras();
    Check2 = Piezas::Casilla("Check2", " Modificable");
    Atender();
}

void FrmNuevoformato::Montar(const QList<Renglon>& renglones)
{
    const QList<Renglon> propios{
        {"Nombre del formato:", Txt}, {"Descripción:", TxtDes}, {"Tipo:", CbTipo}};
    Armar(propios + renglones, {Check1, Check2}, "expnuevo");
}

void FrmNuevoformato::Atender()
{
    connect(Txt, &QComboBox::editTextChanged, this, [this](const QString& texto) {
        if (Nuevo()) Nuevo()->Escribir_Nombre(texto);
    });
    connect(Txt, &QComboBox::activated, this, [this](int indice) {
        if (!Nuevo() || static_cast<const Combo_Nombre*>(Txt)->Tecleado()) return;
        Nuevo()->Elegir_Nombre(indice);
        Mostrar_Datos();
    });
    connect(CbTipo, &QComboBox::activated, this, [this](int indice) {
        if (!Nuevo()) return;
        Nuevo()->Elegir_Tipo(indice);
        Mostrar_Datos();
    });
    connect(TxtDes, &QLineEdit::textEdited, this, [this](const QString& texto) {
        if (Nuevo()) Nuevo()->descripcion = texto;
    });
    connect(Check2, &QCheckBox::toggled, this, [this](bool si) {
        if (Nuevo()) Nuevo()->modificable = si;
    });
}

void FrmNuevoformato::Mostrar_Con(Formato_Nuevo& modelo)
{
    Soltar_Modelo();
    Txt->clear();
    Txt->addItems(modelo.nombres);
    CbTipo->clear();
    CbTipo->addItems(modelo.tipos);
    CbTipo->setProperty("Tag", modelo.tag_tipos);
    Mostrar_Modelo(modelo, *Txt);
}

void FrmNuevoformato::Mostrar_Datos()
{
    const Formato_Nuevo& modelo = *Nuevo();
    const QSignalBlocker sin_avisos(Txt);
    Txt->setCurrentIndex(modelo.indice_nombre);
    Txt->setEditText(modelo.nombre);
    TxtDes->setText(modelo.descripcion);
    CbTipo->setCurrentIndex(modelo.tipo);
    panel->Mostrar();
    Check1->setChecked(modelo.cabeceras);
    Check2->setChecked(modelo.modificable);
}

void FrmNuevoformato::Al_Rechazar()
{
    Txt->setFocus();
}
