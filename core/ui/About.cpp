#include "core/ui/About.h"

#include "core/ModEstTotal.h"
#include "core/ui/Piezas.h"

#include <QButtonGroup>
#include <QCoreApplication>
#include <QFormLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

namespace {

struct Oficina {
    const char16_t *nombre, *boton, *direccion, *poblacion, *telefono, *fax;
};

// Neutral texts: numbers that belong to nobody.
constexpr Oficina OFICINAS[] = {
    {u"central", u"&Central", u"Calle de la Nivelada, 1", u"28000 Madrid", u"910 000 001",
     u"910 000 002"},
    {u"centro", u"C&entro", u"Avenida del Jalón, 12", u"47000 Valladolid", u"983 000 001",
     u"983 000 002"},
    {u"norte", u"&Norte", u"Plaza de la Plomada, 3", u"48000 Bilbao", u"944 000 001",
     u"944 000 002"},
    {u"levante", u"&Levante", u"Calle del Teodolito, 25", u"46000 Valencia", u"963 000 001",
     u"963 000 002"},
    {u"andalucia", u"&Andalucía", u"Paseo de la Estadía, 8", u"41000 Sevilla", u"954 000 001",
     u"954 000 002"},
};

QString De(const char16_t* texto)
{
    return QString::fromUtf16(texto);
}

} // namespace

QString Texto_Version()
{
    return QStringLiteral("Versión ") + QCoreApplication::applicationVersion();
}

About::About() : Ventana(QStringLiteral("About"))
{
    setWindowTitle(QStringLiteral("Acerca de ..."));
    QLabel* const logo = Piezas::Imagen("Image1", 96, 96);
    Piezas::Poner_Imagen(*logo, En_Instalacion("bmp/miraldos.png"));
    auto* const titulo = new QLabel(QStringLiteral("<h2>Miraldos</h2>"));
    QLabel* const version = Piezas::Rotulo(Texto_Version(), "version");

    auto* const cabeza = new QHBoxLayout;
    auto* const rotulos = new QVBoxLayout;
    rotulos->addStretch();
    rotulos->addWidget(titulo);
    rotulos->addWidget(version);
    rotulos->addWidget(Piezas::Rotulo("Transferencia de datos de estaciones totales y niveles"));
    rotulos->addStretch();
    cabeza->addWidget(logo);
    cabeza->addLayout(rotulos, 1);

    QGroupBox* const grupo = Piezas::Grupo("Oficinas", "Frame1");
    auto* const datos = new QFormLayout;
    datos->addRow("Dirección:", lblDireccion = Piezas::Rotulo({}, "lblDireccion"));
    datos->addRow("Población:", lblPoblacion = Piezas::Rotulo({}, "lblPoblacion"));
    datos->addRow("Teléfono:", lblTelefono = Piezas::Rotulo({}, "lblTelefono"));
    datos->addRow("Fax:", lblFax = Piezas::Rotulo({}, "lblFax"));
    auto* const botones = new QHBoxLayout;
    auto* const juego = new QButtonGroup(this);
    for (int i = 0; i < int(std::size(OFICINAS)); ++i) {
        QPushButton* const boton = Piezas::Boton(De(OFICINAS[i].nombre), De(OFICINAS[i].boton));
        boton->setCheckable(true);
        juego->addButton(boton, i);
        botones->addWidget(boton);
    }
    connect(juego, &QButtonGroup::idClicked, this, &About::Mostrar_Oficina);
    auto* const dentro = new QVBoxLayout(grupo);
    dentro->addLayout(botones);
    dentro->addLayout(datos);

    QPushButton* const aceptar = Piezas::Boton("BtnAceptar", "&Aceptar");
    auto* const caja = new QVBoxLayout(this);
    caja->addLayout(cabeza);
    caja->addWidget(grupo);
    caja->addWidget(aceptar, 0, Qt::AlignRight);
    connect(aceptar, &QPushButton::clicked, this, &Ventana::Descargar);
    Poner_Botones(aceptar, aceptar);
    juego->button(0)->setChecked(true);
    Mostrar_Oficina(0);
}

void About::Mostrar_Oficina(int indice)
{
    const Oficina& oficina = OFICINAS[indice];
    lblDireccion->setText(De(oficina.direccion));
    lblPoblacion->setText(De(oficina.poblacion));
    lblTelefono->setText(De(oficina.telefono));
    lblFax->setText(De(oficina.fax));
}
