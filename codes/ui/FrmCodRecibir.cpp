#include "codes/ui/FrmCodRecibir.h"

#include "core/ui/Dialogos.h"
#include "core/ui/Piezas.h"

#include <QButtonGroup>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QVBoxLayout>

namespace {
constexpr int ANCHO_CAJA = 280;
constexpr int SIN_LIMITE = 32767;
} // namespace

FrmCodRecibir::FrmCodRecibir() : Ventana(QStringLiteral("FrmCodRecibir"))
{
    setWindowTitle(QStringLiteral("Recibir librería de Códigos"));
    auto* const caja = new QVBoxLayout(this);
    auto* const opciones = new QButtonGroup(this);
    const char16_t* const textos[] = {u"Base de Datos MIRALDOS", u"Fichero de Texto"};
    for (int i = 0; i < 2; ++i) {
        OptDes[i] = new QRadioButton(QString::fromUtf16(textos[i]));
        OptDes[i]->setObjectName(QStringLiteral("OptDes"));
        OptDes[i]->setProperty("Index", i);
        opciones->addButton(OptDes[i], i);
        caja->addWidget(OptDes[i]);
    }
    Label1 = Piezas::Rotulo({}, "Label1");
    Text1 = Piezas::Caja("Text1");
    Text1->setMinimumWidth(ANCHO_CAJA);
    BtnSelFic = Piezas::Boton("BtnSelFic", "&Ubicar Fichero");
    auto* const nombre = new QHBoxLayout;
    nombre->addWidget(Label1);
    nombre->addWidget(Text1, 1);
    nombre->addWidget(BtnSelFic);
    caja->addLayout(nombre);
    QPushButton* const BtnAce = Piezas::Boton("BtnAce", "&Aceptar");
    QPushButton* const BtnCan = Piezas::Boton("BtnCan", "&Cancelar");
    caja->addLayout(Piezas::Fila_De_Botones({BtnAce, BtnCan}));
    Poner_Botones(BtnAce, BtnCan);

    connect(opciones, &QButtonGroup::idClicked, this, [this](int cual) {
        if (!modelo) return;
        modelo->Elegir(Destino(cual));
        Mostrar_Todo();
    });
    connect(Text1, &QLineEdit::textEdited, this, [this](const QString& texto) {
        if (modelo) modelo->nombre = texto;
    });
    connect(BtnSelFic, &QPushButton::clicked, this, [this] {
        if (!modelo) return;
        modelo->Ubicar_Fichero();
        Mostrar_Todo();
    });
    connect(BtnAce, &QPushButton::clicked, this, [this] {
        if (!modelo) return;
        if (modelo->Aceptar())
            Descargar();
        else
            Text1->setFocus();
    });
    connect(BtnCan, &QPushButton::clicked, this, &Ventana::Descargar);
}

void FrmCodRecibir::Mostrar_Todo()
{
    OptDes[int(modelo->opcion)]->setChecked(true);
    Label1->setText(modelo->rotulo);
    Text1->setMaxLength(modelo->largo_maximo > 0 ? modelo->largo_maximo : SIN_LIMITE);
    Text1->setText(modelo->nombre);
    BtnSelFic->setVisible(modelo->hay_fichero);
}

std::optional<Destino_Libreria> Pedir_Destino_Libreria()
{
    auto& frm = Dialogos::Unico<FrmCodRecibir>();
    const QPointer<FrmCodRecibir> viva(&frm);
    Eleccion_Destino eleccion;
    frm.modelo = &eleccion;
    frm.Mostrar_Todo();
    frm.Text1->setFocus();
    frm.Mostrar_Modal();
    if (viva && frm.modelo == &eleccion) frm.modelo = nullptr;
    if (eleccion.elegido.destino == Destino::Ninguno) return std::nullopt;
    return eleccion.elegido;
}
