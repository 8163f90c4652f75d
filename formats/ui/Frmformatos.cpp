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

Frmformatos::Frmformatos()
    : Dialogo_Formato("Frmformatos", "Formatos Disponibles", "Command1", "Command2")
{
    DBCombo1 = Piezas::Combo("DBCombo1");
    ChkCab = Piezas::Casilla("ChkCab", {});
    ChkCab->setAccessibleName("Incluye Cabeceras");
    LblTip = Piezas::Rotulo({}, "LblTip");
    Label5 = Piezas::Rotulo({}, "Label5");
    Hacer();
    Recordar_Posicion("FORMATOS", 1);
    modelo.Cargar();
    panel->Atar(&modelo.listas);
    Mostrar_Datos();
    // Another model of the instrument has formats of its own.
    connect(&Sucesos::Unico(), &Sucesos::modelo_cambiado, this, [this] {
        modelo = Mantenimiento_Formatos();
        modelo.Cargar();
        Mostrar_Datos();
    });
    connect(&Sucesos::Unico(), &Sucesos::formatos_cambiados, this, [this] {
        modelo.Actualizar_Combo();
        Mostrar_Datos();
    });
}

void Frmformatos::Hacer()
{
    QGroupBox* const disponibles = Piezas::Grupo(" Formatos Disponibles ");
    Poner_Renglones({{"Nombre del formato:", DBCombo1},
                     {"Descripción:", TxtDes},
                     {"Incluye Cabeceras :", ChkCab},
                     {"Tipo de Formato:", LblTip},
                     {"Es Modificable :", Label5}},
                    disponibles);

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
        Mostrar_Datos();
    });
    connect(BtnGuardar, &QPushButton::clicked, this, [this] {
        modelo.Guardar();
        Mostrar_Datos();
    });
    connect(BtnEliminar, &QPushButton::clicked, this, [this] {
        modelo.Eliminar();
        Mostrar_Datos();
    });
    connect(BtnSalir, &QPushButton::clicked, this, &Ventana::Descargar);
    connect(btnAyuda, &QPushButton::clicked, this, [] { Mostrar_Ayuda_Web("formatos"); });
}

void Frmformatos::Mostrar_Datos()
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
    Mostrar_Datos();
}

void Frmformatos::Al_Descargar()
{
    modelo.Cerrar();
}
