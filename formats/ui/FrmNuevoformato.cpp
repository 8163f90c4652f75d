#include "formats/ui/FrmNuevoformato.h"

#include "core/Ayuda.h"
#include "core/ui/Piezas.h"
#include "formats/ui/Panel_Campos.h"

#include <QCheckBox>
#include <QComboBox>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLineEdit>
#include <QPushButton>
#include <QSignalBlocker>
#include <QVBoxLayout>

namespace {
// Widths of the columns that take these texts.
constexpr int ANCHO_NOMBRE = 50, ANCHO_DESCRIPCION = 255;
/// A combo that tells a typed name from a picked one. Enter in the box, or leaving it, would take the
/// list's entry of the same name for picked: a typed name is a new format's also there.
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

FrmNuevoformato::FrmNuevoformato() : Ventana(QStringLiteral("FrmNuevoformato"))
{
    setWindowTitle(QStringLiteral("Crear formato nuevo"));
    Txt = new Combo_Nombre;
    TxtDes = Piezas::Caja("TxtDes", ANCHO_DESCRIPCION);
    CbTipo = Piezas::Combo("CbTipo");
    panel = new Panel_Campos("Btnsubir", "BtnBajar");
    Check1 = Piezas::Casilla("Check1", " Incluir Cabeceras");
    Check2 = Piezas::Casilla("Check2", " Modificable");
    Hacer();
}

void FrmNuevoformato::Hacer()
{
    QPushButton* const BtnAceptar = Piezas::Boton("BtnAceptar", "&Aceptar");
    QPushButton* const BtnCancelar = Piezas::Boton("BtnCancelar", "&Cancelar");
    QPushButton* const btnAyuda = Piezas::Boton("btnAyuda", "&Ayuda");
    auto* const datos = new QFormLayout;
    datos->addRow("Nombre del formato:", Txt);
    datos->addRow("Descripción:", TxtDes);
    datos->addRow("Tipo:", CbTipo);
    auto* const casillas = new QHBoxLayout;
    casillas->addWidget(Check1);
    casillas->addWidget(Check2);
    casillas->addStretch();
    auto* const botones = Piezas::Fila_De_Botones({BtnAceptar, BtnCancelar, btnAyuda});
    auto* const caja = new QVBoxLayout(this);
    caja->addLayout(datos);
    caja->addWidget(panel, 1);
    caja->addLayout(casillas);
    caja->addLayout(botones);
    Poner_Botones(BtnAceptar, BtnCancelar);

    connect(Txt, &QComboBox::editTextChanged, this, [this](const QString& texto) {
        if (modelo) modelo->Escribir_Nombre(texto);
    });
    connect(Txt, &QComboBox::activated, this, [this](int indice) {
        if (!modelo || static_cast<const Combo_Nombre*>(Txt)->Tecleado()) return;
        modelo->Elegir_Nombre(indice);
        Mostrar_Datos();
    });
    connect(CbTipo, &QComboBox::activated, this, [this](int indice) {
        if (!modelo) return;
        modelo->Elegir_Tipo(indice);
        Mostrar_Datos();
    });
    connect(TxtDes, &QLineEdit::textEdited, this, [this](const QString& texto) {
        if (modelo) modelo->descripcion = texto;
    });
    connect(Check1, &QCheckBox::toggled, this, [this](bool si) {
        if (modelo) modelo->cabeceras = si;
    });
    connect(Check2, &QCheckBox::toggled, this, [this](bool si) {
        if (modelo) modelo->modificable = si;
    });
    connect(BtnAceptar, &QPushButton::clicked, this, &FrmNuevoformato::BtnAceptar_Click);
    connect(BtnCancelar, &QPushButton::clicked, this, &Ventana::Descargar);
    connect(btnAyuda, &QPushButton::clicked, this, [] { Mostrar_Ayuda_Web("expnuevo"); });
}

void FrmNuevoformato::Mostrar_Con(Formato_Nuevo& m)
{
    const QPointer<FrmNuevoformato> viva(this);
    modelo = nullptr; // filling the boxes is no typing
    setWindowTitle(m.titulo);
    Txt->clear();
    Txt->addItems(m.nombres);
    CbTipo->clear();
    CbTipo->addItems(m.tipos);
    CbTipo->setProperty("Tag", m.tag_tipos);
    modelo = &m;
    panel->Atar(&m.listas);
    Mostrar_Datos();
    Txt->setFocus();
    Mostrar_Modal();
    if (viva && modelo == &m) {
        panel->Atar(nullptr);
        modelo = nullptr;
    }
}

void FrmNuevoformato::Mostrar_Datos()
{
    const QSignalBlocker sin_avisos(Txt);
    Txt->setCurrentIndex(modelo->indice_nombre);
    Txt->setEditText(modelo->nombre);
    TxtDes->setText(modelo->descripcion);
    CbTipo->setCurrentIndex(modelo->tipo);
    panel->Mostrar();
    Check1->setChecked(modelo->cabeceras);
    Check2->setChecked(modelo->modificable);
}

void FrmNuevoformato::BtnAceptar_Click()
{
    if (!modelo) return;
    if (modelo->Aceptar([this] { Ocultar(); })) Descargar();
    else Txt->setFocus();
}
