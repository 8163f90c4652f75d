#include "core/ui/Frmutils.h"

#include "core/Ajustes_Modelo.h"
#include "core/Ayuda.h"
#include "core/Copias.h"
#include "core/ui/Dialogos.h"
#include "core/ui/FrmCopias.h"
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

namespace {

const QString VELOCIDADES = QStringLiteral("Combo1"), MODELO = QStringLiteral("Combo6");
// It has a frame of its own on the first tab; the other check boxes fill the second.
const QString FIJAR = QStringLiteral("Check1");

bool Con_Combo(const Ajuste& fila)
{
    return std::holds_alternative<Ajuste_Texto>(fila.lugar) && *fila.control != 0;
}

} // namespace

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
    connect(combos[MODELO], &QComboBox::currentIndexChanged, this, &Frmutils::Combo6_Click);
}

QWidget* Frmutils::Hacer_Comunicaciones()
{
    QGroupBox* const fraConnection = Piezas::Grupo("Preferencias de la conexión", "fraConnection");
    auto* const datos = new QFormLayout(fraConnection);
    for (const Ajuste& fila : Tabla_Ajustes()) {
        if (!Con_Combo(fila)) continue;
        const QString nombre = QString::fromLatin1(fila.control);
        combos[nombre] = Piezas::Combo(nombre);
        combos[nombre]->setMinimumWidth(150);
        datos->addRow(QString::fromUtf16(fila.rotulo), combos[nombre]);
    }

    QGroupBox* const fijar = Piezas::Grupo(" Fijar Modelo Estación ", "Frame2");
    auto* const fila = new QHBoxLayout(fijar);
    casillas[FIJAR] = Piezas::Casilla(FIJAR, {});
    casillas[FIJAR]->setAccessibleName("Fijar Modelo");
    fila->addWidget(Piezas::Rotulo("Fijar Modelo", "LblFijar"));
    fila->addWidget(casillas[FIJAR]);
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
    for (const Ajuste& fila : Tabla_Ajustes()) {
        const QString nombre = QString::fromLatin1(fila.control);
        if (!std::holds_alternative<Ajuste_Marca>(fila.lugar) || nombre == FIJAR) continue;
        casillas[nombre] = Piezas::Casilla(nombre, QString::fromUtf16(fila.rotulo));
        caja->addWidget(casillas[nombre]);
    }
    caja->addStretch();
    caja->addWidget(Hacer_Base());
    return pagina;
}

QWidget* Frmutils::Hacer_Base()
{
    QGroupBox* const grupo = Piezas::Grupo("Base de datos", "FrameBase");
    QLabel* const lugar = Piezas::Rotulo(Lugar_De_La_Base(), "LblBase");
    lugar->setWordWrap(true);
    lugar->setTextInteractionFlags(Qt::TextSelectableByMouse);
    QPushButton* const BtnRecuperar = Piezas::Boton("BtnRecuperar", "&Recuperar de la copia...");
    auto* const caja = new QVBoxLayout(grupo);
    caja->addWidget(lugar);
    caja->addWidget(BtnRecuperar, 0, Qt::AlignRight);
    connect(BtnRecuperar, &QPushButton::clicked, this,
            [] { Dialogos::Unico<FrmCopias>().Mostrar_Modal(); });
    return grupo;
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
    Carga_Frmutils carga = Cargar_Frmutils();
    for (const auto& [nombre, combo] : combos)
        Llenar(*combo, carga.combos[nombre]);
    combos[MODELO]->setProperty("Tag", carga.claves);
    for (const Ajuste& fila : Tabla_Ajustes())
        if (const auto* const marca = std::get_if<Ajuste_Marca>(&fila.lugar))
            casillas[QString::fromLatin1(fila.control)]->setChecked(carga.casillas.*marca->valor);
    if (!carga.animacion.isEmpty()) {
        auto* const pelicula = new QMovie(carga.animacion, {}, Animation1);
        Animation1->setMovie(pelicula);
        pelicula->start();
    }
}

void Frmutils::Cargar_Combo1(const QString& lista)
{
    Llenar(*combos[VELOCIDADES], Lista_Velocidades(lista));
}

void Frmutils::Combo6_Click()
{
    if (const auto velocidades = Elegir_Modelo(combos[MODELO]->currentText()))
        Llenar(*combos[VELOCIDADES], *velocidades);
}

void Frmutils::Command2_Click()
{
    Ajustes ajustes;
    for (const Ajuste& fila : Tabla_Ajustes()) {
        const QString nombre = QString::fromLatin1(fila.control);
        if (const auto* const marca = std::get_if<Ajuste_Marca>(&fila.lugar))
            ajustes.*marca->valor = casillas[nombre]->isChecked();
        else if (Con_Combo(fila))
            ajustes.*std::get<Ajuste_Texto>(fila.lugar).valor = combos[nombre]->currentText();
    }
    const QComboBox& modelo = *combos[MODELO];
    Aceptar_Frmutils(ajustes, modelo.property("Tag").toString(), modelo.currentIndex());
    Descargar();
}
