#include "export/ui/FrmExportar.h"

#include "core/Ayuda.h"
#include "core/Interfaz.h"
#include "core/ui/Piezas.h"
#include "export/ui/Avance_Dialogo.h"

#include <QButtonGroup>
#include <QCheckBox>
#include <QCloseEvent>
#include <QComboBox>
#include <QFormLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QProgressBar>
#include <QPushButton>
#include <QRadioButton>
#include <QScopedValueRollback>
#include <QScreen>
#include <QSignalBlocker>
#include <QVBoxLayout>

namespace {

void Llenar(QComboBox& combo, const QStringList& textos, int entrada)
{
    const QSignalBlocker callado(&combo);
    combo.clear();
    combo.addItems(textos);
    combo.setCurrentIndex(entrada);
}

} // namespace

FrmExportar::FrmExportar() : Ventana(QStringLiteral("FrmExportar"))
{
    setWindowTitle(QStringLiteral("Guardar/Exportar Archivo"));
    Pb1 = new QProgressBar;
    Pb1->setObjectName(QStringLiteral("Pb1"));
    Pb1->setRange(0, Avance_Dialogo::TOPE);
    Pb1->setTextVisible(false);
    LblMsg = Piezas::Rotulo({}, "LblMsg");
    BtnExportar = Piezas::Boton("BtnExportar", "&Exportar");
    QPushButton* const BtnSalir = Piezas::Boton("BtnSalir", "&Cerrar");
    QPushButton* const btnAyuda = Piezas::Boton("btnAyuda", "&Ayuda");
    auto* const botones = Piezas::Fila_De_Botones({BtnExportar, BtnSalir, btnAyuda});
    auto* const caja = new QVBoxLayout(this);
    caja->addWidget(Hacer_Opciones());
    caja->addLayout(Hacer_Fichero());
    caja->addWidget(LblMsg);
    caja->addWidget(Pb1);
    caja->addLayout(botones);
    setMinimumWidth(520);
    Poner_Botones(BtnExportar, BtnSalir);
    connect(BtnExportar, &QPushButton::clicked, this, &FrmExportar::BtnExportar_Click);
    connect(BtnSalir, &QPushButton::clicked, this, &Ventana::Descargar);
    connect(btnAyuda, &QPushButton::clicked, this, [] { Mostrar_Ayuda_Web("expnuevo"); });
}

QGroupBox* FrmExportar::Hacer_Opciones()
{
    QGroupBox* const grupo = Piezas::Grupo("Tipo de Fichero", "Frame1");
    auto* const opciones = new QVBoxLayout;
    auto* const juego = new QButtonGroup(this);
    for (const Salida_Exportar& salida : Salidas_Exportar()) {
        if (salida.opcion < 0) continue;
        auto* const opcion = new QRadioButton(salida.rotulo);
        opcion->setObjectName(QStringLiteral("OptFor"));
        opcion->setProperty("Index", salida.opcion);
        juego->addButton(opcion, salida.opcion);
        opciones->addWidget(opcion);
        OptFor << opcion;
    }
    connect(juego, &QButtonGroup::idClicked, this, [this](int indice) {
        modelo->Elegir_Opcion(indice);
        Mostrar_Modelo();
    });
    Label4 = Piezas::Rotulo("Caracter de Separación :", "Label4");
    Caracter = Piezas::Combo("Caracter");
    Label3 = Piezas::Rotulo("Versión Excel :", "Label3");
    VersionExcel = Piezas::Combo("VersionExcel");
    ChkNumeros = Piezas::Casilla("ChkNumeros", "Números como números");
    auto* const lado = new QVBoxLayout;
    for (QWidget* const pieza : {static_cast<QWidget*>(Label4), static_cast<QWidget*>(Caracter),
                                 static_cast<QWidget*>(Label3), static_cast<QWidget*>(VersionExcel),
                                 static_cast<QWidget*>(ChkNumeros)})
        lado->addWidget(pieza);
    lado->addStretch();
    auto* const caja = new QHBoxLayout(grupo);
    caja->addLayout(opciones, 1);
    caja->addLayout(lado, 1);
    connect(Caracter, &QComboBox::activated, this, [this](int i) { modelo->caracter = i; });
    connect(VersionExcel, &QComboBox::activated, this,
            [this](int i) { modelo->Elegir_Version(i); });
    connect(ChkNumeros, &QCheckBox::clicked, this, [this](bool si) { modelo->Marcar_Numeros(si); });
    return grupo;
}

QLayout* FrmExportar::Hacer_Fichero()
{
    Text1 = Piezas::Caja("Text1");
    Text1->setReadOnly(true);
    BtnElegir =
        Piezas::Boton_Dibujo("BtnElegir", "carpeta.png", "...", "Seleccione Fichero de Salida");
    BtnElegir->setAccessibleName("Seleccione Fichero de Salida");
    auto* const fila = new QHBoxLayout;
    fila->addWidget(Piezas::Rotulo("Fichero Exportado :"));
    fila->addWidget(Text1, 1);
    fila->addWidget(BtnElegir);
    connect(BtnElegir, &QPushButton::clicked, this, [this] {
        modelo->Elegir_Fichero();
        Mostrar_Modelo();
        if (!modelo->fichero.isEmpty()) BtnExportar->setFocus();
    });
    return fila;
}

void FrmExportar::Mostrar_Con(const Trabajo_Exportar& trabajo)
{
    modelo = std::make_unique<Dialogo_Exportar>(trabajo);
    Mostrar_Modelo();
    LblMsg->clear();
    Pb1->setValue(0);
    BtnElegir->setFocus();
    Mostrar_Modal();
}

void FrmExportar::Mostrar_Modelo()
{
    for (int i = 0; i < OptFor.size(); ++i) {
        OptFor[i]->setEnabled(modelo->activa[i]);
        OptFor[i]->setChecked(i == modelo->opcion);
    }
    Llenar(*Caracter, modelo->caracteres, modelo->caracter);
    Caracter->setProperty("Tag", modelo->tag_caracteres);
    Llenar(*VersionExcel, modelo->versiones, modelo->version);
    for (QWidget* const pieza : {static_cast<QWidget*>(Label4), static_cast<QWidget*>(Caracter)})
        pieza->setVisible(modelo->caracter_visible);
    for (QWidget* const pieza : {static_cast<QWidget*>(Label3), static_cast<QWidget*>(VersionExcel),
                                 static_cast<QWidget*>(ChkNumeros)})
        pieza->setVisible(modelo->version_visible);
    ChkNumeros->setChecked(modelo->numeros);
    Text1->setText(modelo->fichero);
    BtnElegir->setEnabled(modelo->elegir_activo);
}

void FrmExportar::BtnExportar_Click()
{
    if (exportando) return;
    const QScopedValueRollback<bool> marca(exportando, true);
    Avance_Dialogo avance(*Pb1, *LblMsg);
    modelo->Exportar(avance);
}

void FrmExportar::Colocar()
{
    adjustSize();
    const QRect pantalla = screen()->availableGeometry();
    move(pantalla.center() - rect().center());
}

void FrmExportar::closeEvent(QCloseEvent* evento)
{
    // The writer that is running still reports to these controls.
    if (exportando)
        evento->ignore();
    else
        Ventana::closeEvent(evento);
}
