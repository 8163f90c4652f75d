#include "codes/ui/Panel_Librerias.h"

#include "core/ui/Piezas.h"

#include <QComboBox>
#include <QFormLayout>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QShortcut>

namespace {
constexpr int BOTONES_POR_FILA = 3;
constexpr int ANCHO_COMBO = 200;
} // namespace

Panel_Librerias::Panel_Librerias(Mantenimiento_Librerias& m, std::function<void()> r)
    : modelo(m), refrescar(std::move(r)), Combo1(Piezas::Combo("Combo1")),
      LblCod(Piezas::Rotulo({}, "LblCod")), lblDes(Piezas::Rotulo({}, "lblDes")),
      botones(new QGridLayout)
{
    setTitle(" Librería ");
    Combo1->setMinimumWidth(ANCHO_COMBO);
    Combo1->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    lblDes->setWordWrap(true);
    auto* const datos = new QFormLayout;
    datos->addRow("Librería:", Combo1);
    datos->addRow("Nombre:", LblCod);
    datos->addRow("Descripción:", lblDes);
    auto* const caja = new QHBoxLayout(this);
    caja->addLayout(datos, 1);
    caja->addLayout(botones);
    Hacer_Botones();
    connect(Combo1, &QComboBox::activated, this, &Panel_Librerias::Combo1_Click);
}

void Panel_Librerias::Hacer_Botones()
{
    Anadir_Boton(Piezas::Boton("BtnNueLib", "&Nueva", "Crear librería de códigos"),
                 [this] { modelo.Nueva(); });
    Anadir_Boton(
        Piezas::Boton("BtnEdi", "&Editar", "Editar descripción de  la librería de códigos"),
        [this] { modelo.Editar(); });
    Anadir_Boton(Piezas::Boton("BtnEliLib", "E&liminar", "Eliminar librería de códigos"),
                 [this] { modelo.Eliminar(); });
    Anadir_Boton(Piezas::Boton("BtnCopLib", "Co&piar", "Copiar la librería con otro nombre"),
                 [this] { modelo.Copiar(); });
    Anadir_Boton(
        Piezas::Boton("BtnImpLib", "I&mportar", "Crear una librería desde un fichero de texto"),
        [this] { modelo.Importar(); });
    Anadir_Boton(
        Piezas::Boton("BtnExpLib", "E&xportar", "Guardar la librería en un fichero de texto"),
        [this] { modelo.Exportar(); });
    Anadir_Boton(Piezas::Boton("BtnEnvLib", "En&viar", "Enviar la librería a la máquina"),
                 [this] { modelo.Enviar(); });
}

void Panel_Librerias::Anadir_Boton(QPushButton* boton, std::function<void()> accion)
{
    botones->addWidget(boton, puestos / BOTONES_POR_FILA, puestos % BOTONES_POR_FILA);
    ++puestos;
    connect(boton, &QPushButton::clicked, this, [this, hacer = std::move(accion)] {
        hacer();
        refrescar();
    });
}

void Panel_Librerias::Mostrar(const QStringList& nombres, const QString& tag)
{
    Combo1->clear();
    Combo1->addItems(nombres);
    Combo1->setProperty("Tag", tag);
    Combo1->setCurrentIndex(modelo.indice);
    LblCod->setText(modelo.Codigo());
    lblDes->setText(modelo.Descripcion());
}

void Panel_Librerias::Combo1_Click(int entrada)
{
    modelo.Elegir(entrada);
    refrescar();
}

QLineEdit* Caja_De_Busqueda(QWidget* dialogo, Mantenimiento_Librerias& modelo,
                            const std::function<void()>& refrescar)
{
    QLineEdit* const caja = Piezas::Caja("TxtBuscar");
    caja->setPlaceholderText("Buscar código (Intro: el siguiente)");
    caja->setClearButtonEnabled(true);
    caja->setAccessibleName("Buscar código");
    const auto buscar = [&modelo, refrescar, caja](bool siguiente) {
        modelo.Buscar(caja->text(), siguiente);
        refrescar();
    };
    QObject::connect(caja, &QLineEdit::textEdited, dialogo, [buscar] { buscar(false); });
    QObject::connect(caja, &QLineEdit::returnPressed, dialogo, [buscar] { buscar(true); });
    const auto* const tecla = new QShortcut(QKeySequence::Find, dialogo);
    QObject::connect(tecla, &QShortcut::activated, caja, [caja] {
        caja->setFocus();
        caja->selectAll();
    });
    return caja;
}

QVBoxLayout* Columna_De_Botones(QWidget* dialogo, const QList<Boton_De_Codigos>& botones,
                                const std::function<void()>& refrescar)
{
    auto* const columna = new QVBoxLayout;
    for (const Boton_De_Codigos& b : botones) {
        QPushButton* const boton =
            Piezas::Boton(QString::fromUtf16(b.nombre), QString::fromUtf16(b.texto),
                          QString::fromUtf16(b.consejo));
        columna->addWidget(boton);
        QObject::connect(boton, &QPushButton::clicked, dialogo, [accion = b.accion, refrescar] {
            accion();
            refrescar();
        });
    }
    columna->addStretch();
    return columna;
}
