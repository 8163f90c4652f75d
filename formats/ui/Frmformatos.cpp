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
    : Frmformatos("Frmformatos", "Formatos Disponibles", "FORMATOS",
                  std::make_unique<Mantenimiento_Formatos>())
{
    Montar();
}

Frmformatos::Frmformatos(const QString& nombre, const QString& titulo, const QString& seccion,
                         std::unique_ptr<Mantenimiento_Formatos> mantenimiento)
    : Dialogo_Formato(nombre, titulo, "Command1", "Command2"), modelo(std::move(mantenimiento))
{
    DBCombo1 = Piezas::Combo("DBCombo1");
    ChkCab = Piezas::Casilla("ChkCab", {});
    ChkCab->setAccessibleName("Incluye Cabeceras");
    LblTip = Piezas::Rotulo({}, "LblTip");
    Label5 = Piezas::Rotulo({}, "Label5");
    Recordar_Posicion(seccion, 1);
    connect(&Sucesos::Unico(), &Sucesos::modelo_cambiado, this, [this] { Al_Cambiar_Modelo(); });
    connect(&Sucesos::Unico(), &Sucesos::formatos_cambiados, this, [this] {
        modelo->Actualizar_Combo();
        Mostrar_Datos();
    });
}

void Frmformatos::Al_Cambiar_Modelo()
{
    *modelo = Mantenimiento_Formatos();
    modelo->Cargar();
    Mostrar_Datos();
}

void Frmformatos::Montar(const QList<Renglon>& renglones)
{
    QGroupBox* const disponibles = Piezas::Grupo(" Formatos Disponibles ");
    Poner_Renglones(QList<Renglon>{{"Nombre del formato:", DBCombo1},
                                   {"Descripción:", TxtDes},
                                   {"Incluye Cabeceras :", ChkCab},
                                   {"Tipo de Formato:", LblTip},
                                   {"Es Modificable :", Label5}} +
                        renglones,
                    disponibles);
    auto* const caja = new QVBoxLayout(this);
    caja->addWidget(disponibles);
    caja->addWidget(panel, 1);
    caja->addLayout(Hacer_Botones());
    connect(DBCombo1, &QComboBox::activated, this, &Frmformatos::DBCombo1_Click);
    connect(TxtDes, &QLineEdit::textEdited, this,
            [this](const QString& texto) { modelo->descripcion = texto; });
    connect(ChkCab, &QCheckBox::toggled, this, [this](bool si) { modelo->cabeceras = si; });
    modelo->Cargar();
    panel->Atar(&modelo->listas);
    Mostrar_Datos();
}

QLayout* Frmformatos::Hacer_Botones()
{
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
    Poner_Botones(nullptr, BtnSalir);
    using Orden = void (Mantenimiento_Formatos::*)();
    const auto atender = [this](QPushButton* boton, Orden orden) {
        connect(boton, &QPushButton::clicked, this, [this, orden] {
            (modelo.get()->*orden)();
            Mostrar_Datos();
        });
    };
    atender(BtnNuevo, &Mantenimiento_Formatos::Nuevo);
    atender(BtnGuardar, &Mantenimiento_Formatos::Guardar);
    atender(BtnEliminar, &Mantenimiento_Formatos::Eliminar);
    connect(BtnSalir, &QPushButton::clicked, this, &Ventana::Descargar);
    connect(btnAyuda, &QPushButton::clicked, this, [] { Mostrar_Ayuda_Web("formatos"); });
    return botones;
}

void Frmformatos::Mostrar_Datos()
{
    DBCombo1->clear();
    DBCombo1->addItems(modelo->nombres);
    DBCombo1->setCurrentIndex(Piezas::Indice_De(*DBCombo1, modelo->nombre));
    TxtDes->setText(modelo->descripcion);
    ChkCab->setChecked(modelo->cabeceras);
    ChkCab->setEnabled(!modelo->bloqueado);
    LblTip->setText(modelo->tipo);
    Label5->setText(modelo->es_modificable);
    panel->Mostrar();
    panel->Bloquear(modelo->bloqueado);
}

void Frmformatos::DBCombo1_Click()
{
    modelo->Elegir(DBCombo1->currentText());
    Mostrar_Datos();
}

void Frmformatos::Al_Descargar()
{
    modelo->Cerrar();
}
