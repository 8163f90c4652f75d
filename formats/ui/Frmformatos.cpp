#include "formats/ui/Frmformatos.h"

#include "core/Ayuda.h"
#include "core/Sucesos.h"
#include "core/ui/Piezas.h"
#include "formats/ui/Panel_Campos.h"

#include <QCheckBox>
#include <QComboBox>
#include <QFormLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

namespace {
constexpr int ANCHO_DESCRIPCION = 255;
}

Frmformatos::Frmformatos() : Ventana(QStringLiteral("Frmformatos"))
{
    setWindowTitle(QStringLiteral("Formatos Disponibles"));
    DBCombo1 = Piezas::Combo("DBCombo1");
    TxtDes = Piezas::Caja("TxtDes", ANCHO_DESCRIPCION);
    ChkCab = Piezas::Casilla("ChkCab", {});
    ChkCab->setAccessibleName("Incluye Cabeceras");
    LblTip = Piezas::Rotulo({}, "LblTip");
    Label5 = Piezas::Rotulo({}, "Label5");
    panel = new Panel_Campos("Command1", "Command2");
    Hacer();
    Recordar_Posicion("FORMATOS", 1);
    modelo.Cargar();
    panel->Atar(&modelo.listas);
    Mostrar_Todo();
    // Another model of the instrument has formats of its own.
    connect(&Sucesos::Unico(), &Sucesos::modelo_cambiado, this, [this] {
        modelo = Mantenimiento_Formatos();
        modelo.Cargar();
        Mostrar_Todo();
    });
    connect(&Sucesos::Unico(), &Sucesos::formatos_cambiados, this, [this] {
        modelo.Actualizar_Combo();
        Mostrar_Todo();
    });
}

void Frmformatos::Hacer()
{
    QGroupBox* const disponibles = Piezas::Grupo(" Formatos Disponibles ");
    auto* const datos = new QFormLayout(disponibles);
    datos->addRow("Nombre del formato:", DBCombo1);
    datos->addRow("Descripción:", TxtDes);
    datos->addRow("Incluye Cabeceras :", ChkCab);
    datos->addRow("Tipo de Formato:", LblTip);
    datos->addRow("Es Modificable :", Label5);

    QPushButton* const BtnNuevo = Piezas::Boton("BtnNuevo", "&Nuevo", "Crea un nuevo Formato");
    QPushButton* const BtnGuardar =
        Piezas::Boton("BtnGuardar", "&Guardar", "Guarda el Formato que está en edición");
    QPushButton* const BtnEliminar =
        Piezas::Boton("BtnEliminar", "&Eliminar", "Elimina el Formato en edición");
    QPushButton* const BtnSalir = Piezas::Boton("BtnSalir", "&Cerrar");
    QPushButton* const btnAyuda = Piezas::Boton("btnAyuda", "&Ayuda");
    auto* const botones = new QHBoxLayout;
    botones->addWidget(BtnNuevo);
    botones->addWidget(BtnGuardar);
    botones->addWidget(BtnEliminar);
    botones->addStretch();
    botones->addWidget(BtnSalir);
    botones->addWidget(btnAyuda);
    auto* const caja = new QVBoxLayout(this);
    caja->addWidget(disponibles);
    caja->addWidget(panel, 1);
    caja->addLayout(botones);
    Poner_Botones(nullptr, BtnSalir);

    connect(DBCombo1, &QComboBox::activated, this, &Frmformatos::DBCombo1_Click);
    connect(TxtDes, &QLineEdit::textEdited, this,
            [this](const QString& texto) { modelo.descripcion = texto; });
    connect(ChkCab, &QCheckBox::toggled, this, [this](bool si) { modelo.cabeceras = si; });
    connect(BtnNuevo, &QPushButton::clicked, this, [this] {
        modelo.Nuevo();
        Mostrar_Todo();
    });
    connect(BtnGuardar, &QPushButton::clicked, this, [this] {
        modelo.Guardar();
        Mostrar_Todo();
    });
    connect(BtnEliminar, &QPushButton::clicked, this, [this] {
        modelo.Eliminar();
        Mostrar_Todo();
    });
    connect(BtnSalir, &QPushButton::clicked, this, &Ventana::Descargar);
    connect(btnAyuda, &QPushButton::clicked, this, [] { Mostrar_Ayuda_Web("formatos"); });
}

void Frmformatos::Mostrar_Todo()
{
    DBCombo1->clear();
    DBCombo1->addItems(modelo.nombres);
    DBCombo1->setCurrentIndex(Piezas::Indice_De(*DBCombo1, modelo.nombre));
    TxtDes->setText(modelo.descripcion);
    ChkCab->setChecked(modelo.cabeceras);
    ChkCab->setEnabled(!modelo.bloqueado);
    LblTip->setText(modelo.tipo);
    Label5->setText(modelo.es_modificable);
    panel->Mostrar();
    panel->Bloquear(modelo.bloqueado);
}

void Frmformatos::DBCombo1_Click()
{
    modelo.Elegir(DBCombo1->currentText());
    Mostrar_Todo();
}

void Frmformatos::Al_Descargar()
{
    modelo.Cerrar();
}
