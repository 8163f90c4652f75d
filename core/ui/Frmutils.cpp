#include "core/ui/Frmutils.h"

#include "core/Ajustes_Modelo.h"
#include "core/Ayuda.h"
#include "core/ui/Piezas.h"

#include <QCheckBox>
#include <QComboBox>
#include <QFormLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QMovie>
#include <QPushButton>
#include <QTabWidget>
#include <QVBoxLayout>

Frmutils::Frmutils() : Ventana(QStringLiteral("Frmutils"))
{
    setWindowTitle(QStringLiteral("Configuración"));
    SSTab1 = new QTabWidget;
    SSTab1->setObjectName(QStringLiteral("SSTab1"));
    SSTab1->addTab(Hacer_Comunicaciones(), " Comunicaciones");
    SSTab1->addTab(Hacer_Opciones(), ".Otras Opciones         ");
    QPushButton* const Command2 = Piezas::Boton("Command2", "&Aceptar");
    QPushButton* const Command1 = Piezas::Boton("Command1", "&Cerrar");
    QPushButton* const btnAyuda = Piezas::Boton("btnAyuda", "&Ayuda");
    auto* const botones = Piezas::Fila_De_Botones({Command2, Command1, btnAyuda});
    auto* const caja = new QVBoxLayout(this);
    caja->addWidget(SSTab1, 1);
    caja->addLayout(botones);
    Poner_Botones(Command2, Command1);
    connect(Command2, &QPushButton::clicked, this, &Frmutils::Command2_Click);
    connect(Command1, &QPushButton::clicked, this, &Ventana::Ocultar);
    connect(btnAyuda, &QPushButton::clicked, this, [] { Mostrar_Ayuda_Web("config"); });
    Recordar_Posicion("CONFIGURACION", 1);
    Cargar();
    connect(Combo6, &QComboBox::currentIndexChanged, this, &Frmutils::Combo6_Click);
}

QWidget* Frmutils::Hacer_Comunicaciones()
{
    QGroupBox* const fraConnection = Piezas::Grupo("Preferencias de la conexión", "fraConnection");
    auto* const datos = new QFormLayout(fraConnection);
    datos->addRow("Puerto:", Combo5 = Piezas::Combo("Combo5"));
    datos->addRow("Velocidad:", Combo1 = Piezas::Combo("Combo1"));
    datos->addRow("Bits de datos:", Combo2 = Piezas::Combo("Combo2"));
    datos->addRow("Paridad:", Combo3 = Piezas::Combo("Combo3"));
    datos->addRow("Bits de parada:", Combo4 = Piezas::Combo("Combo4"));
    datos->addRow("Modelo:", Combo6 = Piezas::Combo("Combo6"));
    for (QComboBox* const combo : {Combo1, Combo2, Combo3, Combo4, Combo5, Combo6})
        combo->setMinimumWidth(150);

    QGroupBox* const fijar = Piezas::Grupo(" Fijar Modelo Estación ", "Frame2");
    auto* const fila = new QHBoxLayout(fijar);
    Check1 = Piezas::Casilla("Check1", {});
    Check1->setAccessibleName("Fijar Modelo");
    fila->addWidget(Piezas::Rotulo("Fijar Modelo", "LblFijar"));
    fila->addWidget(Check1);
    fila->addStretch();

    Animation1 = Piezas::Imagen("Animation1", 96, 96);
    auto* const pagina = new QWidget;
    auto* const izquierda = new QVBoxLayout;
    izquierda->addWidget(fraConnection);
    izquierda->addWidget(fijar);
    izquierda->addStretch();
    auto* const caja = new QHBoxLayout(pagina);
    caja->addLayout(izquierda, 1);
    caja->addWidget(Animation1, 0, Qt::AlignTop);
    return pagina;
}

QWidget* Frmutils::Hacer_Opciones()
{
    auto* const pagina = new QWidget;
    auto* const caja = new QVBoxLayout(pagina);
    caja->addWidget(Check2 = Piezas::Casilla("Check2", " Mostrar ayuda en Cargas y Descargas"));
    caja->addWidget(
        Check3 = Piezas::Casilla("Check3", " Mostrar Recordatorio de configuración del Puerto"));
    caja->addWidget(Check4 = Piezas::Casilla(
                        "Check4", "Mostrar Diálogo de Entrada de Desplazamientos en Cargas"));
    caja->addWidget(
        Check5 = Piezas::Casilla("Check5",
                                 "Mostrar Diálogo de Entrada de Desplazamientos en Exportaciones"));
    caja->addWidget(
        Check6 = Piezas::Casilla(
            "Check6", "Incluir cabeceras y resúmenes de los trabajos del nivel digital NV400"));
    caja->addStretch();
    return pagina;
}

void Frmutils::Pestana(int indice)
{
    SSTab1->setCurrentIndex(indice);
}

void Frmutils::Llenar(QComboBox& combo, const Combo_Ajustes& ajustes)
{
    combo.clear();
    combo.addItems(ajustes.lista);
    combo.setCurrentIndex(Piezas::Indice_De(combo, ajustes.texto));
}

void Frmutils::Cargar()
{
    const Carga_Frmutils carga = Cargar_Frmutils();
    Llenar(*Combo5, carga.puerto);
    Llenar(*Combo2, carga.bits);
    Llenar(*Combo3, carga.paridad);
    Llenar(*Combo4, carga.parada);
    Llenar(*Combo1, carga.velocidad);
    Llenar(*Combo6, carga.modelo);
    Combo6->setProperty("Tag", carga.claves);
    Check1->setChecked(carga.fijo);
    Check2->setChecked(carga.ayuda);
    Check3->setChecked(carga.recuerde);
    Check4->setChecked(carga.cargas);
    Check5->setChecked(carga.exportar);
    Check6->setChecked(carga.cabeceras);
    if (!carga.animacion.isEmpty()) {
        auto* const pelicula = new QMovie(carga.animacion, {}, Animation1);
        Animation1->setMovie(pelicula);
        pelicula->start();
    }
}

void Frmutils::Cargar_Combo1(const QString& lista)
{
    Llenar(*Combo1, Lista_Velocidades(lista));
}

void Frmutils::Combo6_Click()
{
    if (const auto velocidades = Elegir_Modelo(Combo6->currentText()))
        Llenar(*Combo1, *velocidades);
}

void Frmutils::Command2_Click()
{
    Ajustes ajustes;
    ajustes.puerto = Combo5->currentText();
    ajustes.velocidad = Combo1->currentText();
    ajustes.bits = Combo2->currentText();
    ajustes.paridad = Combo3->currentText();
    ajustes.parada = Combo4->currentText();
    ajustes.nombre = Combo6->currentText();
    ajustes.fijo = Check1->isChecked();
    ajustes.ayuda = Check2->isChecked();
    ajustes.recuerde = Check3->isChecked();
    ajustes.cargas = Check4->isChecked();
    ajustes.exportar = Check5->isChecked();
    ajustes.cabeceras = Check6->isChecked();
    Aceptar_Frmutils(ajustes, Combo6->property("Tag").toString(), Combo6->currentIndex());
    Descargar();
}
