#include "export/ui/FrmDXF.h"

#include "core/ModEstTotal.h"
#include "core/ui/Piezas.h"
#include "export/dxf/Colores_DXF.h"
#include "export/ui/Avance_Dialogo.h"

#include <QCheckBox>
#include <QCloseEvent>
#include <QComboBox>
#include <QFormLayout>
#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QProgressBar>
#include <QPushButton>
#include <QRadioButton>
#include <QRegularExpressionValidator>
#include <QScopedValueRollback>
#include <QScreen>
#include <QSignalBlocker>
#include <QSpinBox>

namespace {

constexpr double COTA_DE_MUESTRA = 125.4375;

// The five colours, in the order of `Option1` to `Option5`.
struct Opcion_Color {
    Color_DXF color;
    const char16_t* texto;
};
constexpr Opcion_Color OPCIONES[] = {
    {Color_DXF::Punto_2D, u"Color del Punto 2D"}, {Color_DXF::Punto_3D, u"Color del Punto 3D"},
    {Color_DXF::Codigo, u"Color del Código"},     {Color_DXF::Numero, u"Color del Número"},
    {Color_DXF::Cota, u"Color de la Cota"},
};
struct Boton_Modo {
    const char *nombre, *texto;
    Modo_DXF modo;
};
constexpr Boton_Modo MODOS[] = {
    {"Bt2D", "Transformar 2D", Modo_DXF::Dos_D},
    {"Bt3D", "Transformar 3D", Modo_DXF::Tres_D},
    {"Bt2D3D", "Transformar 2D 3D", Modo_DXF::Ambos},
};

QColor De_Numero(int numero)
{
    const Color_RGB color = Color_De_Numero(numero);
    return QColor(color.rojo, color.verde, color.azul);
}

QIcon Cuadro(int numero)
{
    QPixmap cuadro(16, 16);
    cuadro.fill(De_Numero(numero));
    return QIcon(cuadro);
}

QLineEdit* Caja_Numero(const QString& nombre, const QString& patron)
{
    QLineEdit* const caja = Piezas::Caja(nombre, 8);
    caja->setValidator(new QRegularExpressionValidator(QRegularExpression(patron), caja));
    return caja;
}

} // namespace

FrmDXF::FrmDXF() : Ventana(QStringLiteral("FrmDXF")), ajustes(Leer_Ajustes_DXF())
{
    setWindowTitle(QStringLiteral("Conversión a DXF"));
    Pb1 = new QProgressBar;
    Pb1->setObjectName(QStringLiteral("Pb1"));
    Pb1->setRange(0, Avance_Dialogo::TOPE);
    Pb1->setTextVisible(false);
    LblMsg = Piezas::Rotulo({}, "LblMsg");
    ChkVer = Piezas::Casilla("ChkVer", "Ver el dibujo al terminar");
    auto* const caja = new QGridLayout(this);
    caja->addWidget(Hacer_Etiquetas(), 0, 0);
    caja->addWidget(Hacer_Colores(), 0, 1, 2, 1);
    caja->addWidget(Hacer_Muestra(), 1, 0);
    caja->addWidget(LblMsg, 2, 0);
    caja->addWidget(ChkVer, 2, 1);
    caja->addWidget(Pb1, 3, 0, 1, 2);
    caja->addLayout(Hacer_Botones(), 4, 0, 1, 2);
    Poner_Botones(botones.first(), botones.last());
    for (QLineEdit* const texto : {TxAltura, TxInclinacion, TxDecimales})
        connect(texto, &QLineEdit::textChanged, this, &FrmDXF::Mostrar_Muestra);
    connect(CbFormato, &QComboBox::currentIndexChanged, this, &FrmDXF::Mostrar_Muestra);
    Mostrar_Color();
    Mostrar_Muestra();
}

QGroupBox* FrmDXF::Hacer_Etiquetas()
{
    QGroupBox* const grupo = Piezas::Grupo("Textos", "Frame1");
    CbFormato = Piezas::Combo("CbFormato");
    for (int i = 1; i <= FORMATOS_DXF; ++i)
        CbFormato->addItem(QString::number(i));
    TxAltura = Caja_Numero("TxAltura", "[0-9]*[.,]?[0-9]*");
    TxInclinacion = Caja_Numero("TxInclinacion", "-?[0-9]*[.,]?[0-9]*");
    TxDecimales = Caja_Numero("TxDecimales", "[0-9]");
    const Textos_DXF textos = Textos_De(ajustes);
    CbFormato->setCurrentText(textos.formato);
    TxAltura->setText(textos.altura);
    TxInclinacion->setText(textos.inclinacion);
    TxDecimales->setText(textos.decimales);
    auto* const caja = new QFormLayout(grupo);
    caja->addRow("Formato Seleccionado :", CbFormato);
    caja->addRow("Altura del Texto :", TxAltura);
    caja->addRow("Inclinación de las Letras :", TxInclinacion);
    caja->addRow("Nº Decimales de Cotas :", TxDecimales);
    return grupo;
}

QGroupBox* FrmDXF::Hacer_Colores()
{
    QGroupBox* const grupo = Piezas::Grupo("Colores", "Frame2");
    auto* const caja = new QVBoxLayout(grupo);
    for (std::size_t i = 0; i < std::size(OPCIONES); ++i) {
        auto* const opcion = new QRadioButton(QString::fromUtf16(OPCIONES[i].texto));
        opcion->setObjectName(QStringLiteral("Option%1").arg(i + 1));
        connect(opcion, &QRadioButton::toggled, this, &FrmDXF::Mostrar_Color);
        caja->addWidget(opcion);
        Opciones << opcion;
    }
    auto* const paleta = new QHBoxLayout;
    paleta->setSpacing(2);
    for (const Color_Con_Nombre& color : Colores_Con_Nombre()) {
        QPushButton* const boton = Piezas::Boton("Color", {}, color.nombre);
        boton->setProperty("Index", color.numero);
        boton->setAccessibleName(color.nombre);
        boton->setIcon(Cuadro(color.numero));
        boton->setFixedWidth(26);
        boton->setAutoDefault(false);
        connect(boton, &QPushButton::clicked, this, [this, n = color.numero] { Poner_Color(n); });
        paleta->addWidget(boton);
    }
    TxColor = new QSpinBox;
    TxColor->setObjectName(QStringLiteral("TxColor"));
    TxColor->setRange(1, COLOR_TOPE);
    connect(TxColor, &QSpinBox::valueChanged, this, &FrmDXF::Poner_Color);
    auto* const numero = new QFormLayout;
    numero->addRow("Número de color :", TxColor);
    caja->addLayout(paleta);
    caja->addLayout(numero);
    Opciones.first()->setChecked(true);
    return grupo;
}

QGroupBox* FrmDXF::Hacer_Muestra()
{
    QGroupBox* const grupo = Piezas::Grupo("Muestra", "Frame3");
    auto* const fondo = new QFrame;
    fondo->setAutoFillBackground(true);
    QPalette oscura = fondo->palette();
    oscura.setColor(QPalette::Window, Qt::black);
    fondo->setPalette(oscura);
    muestra = new QGridLayout(fondo);
    LblPto = Piezas::Rotulo(QStringLiteral("+"), "LblPto");
    LblNPunto = Piezas::Rotulo(QStringLiteral("Número"), "LblNPunto");
    LblCota = Piezas::Rotulo({}, "LblCota");
    LblCodigo = Piezas::Rotulo(QStringLiteral("Código"), "LblCodigo");
    muestra->addWidget(LblPto, 1, 0);
    muestra->setColumnStretch(1, 1);
    auto* const caja = new QVBoxLayout(grupo);
    caja->addWidget(fondo);
    return grupo;
}

QLayout* FrmDXF::Hacer_Botones()
{
    for (const Boton_Modo& b : MODOS) {
        QPushButton* const boton = Piezas::Boton(b.nombre, b.texto);
        connect(boton, &QPushButton::clicked, this, [this, modo = b.modo] { Transformar(modo); });
        botones << boton;
    }
    botones << Piezas::Boton("BtSalir", "Salir");
    connect(botones.last(), &QPushButton::clicked, this, &Ventana::Descargar);
    return Piezas::Fila_De_Botones({botones[0], botones[1], botones[2], botones[3]});
}

int FrmDXF::Color_Elegido() const
{
    for (int i = 0; i < Opciones.size(); ++i)
        if (Opciones[i]->isChecked()) return i;
    return 0;
}

void FrmDXF::Poner_Color(int numero)
{
    ajustes.colores[std::size_t(OPCIONES[Color_Elegido()].color)] = numero;
    Mostrar_Color();
    Mostrar_Muestra();
}

void FrmDXF::Mostrar_Color()
{
    for (int i = 0; i < Opciones.size(); ++i)
        Opciones[i]->setIcon(Cuadro(ajustes.Color(OPCIONES[i].color)));
    if (Opciones.size() < int(std::size(OPCIONES))) return;
    const QSignalBlocker callado(TxColor);
    TxColor->setValue(ajustes.Color(OPCIONES[Color_Elegido()].color));
}

void FrmDXF::Mostrar_Muestra()
{
    Ajustes_DXF vista = ajustes;
    Tomar_Textos(Textos(), vista);
    LblCota->setText(Cota_DXF(COTA_DE_MUESTRA, vista.decimales));
    const Alturas_Etiquetas alturas = Disposicion_DXF(vista.formato);
    const struct {
        QLabel* rotulo;
        double altura;
        Color_DXF color;
    } piezas[] = {{LblNPunto, alturas.numero, Color_DXF::Numero},
                  {LblCota, alturas.cota, Color_DXF::Cota},
                  {LblCodigo, alturas.codigo, Color_DXF::Codigo},
                  {LblPto, 0, Color_DXF::Punto_2D}};
    for (const auto& pieza : piezas) {
        QPalette paleta = pieza.rotulo->palette();
        paleta.setColor(QPalette::WindowText, De_Numero(vista.Color(pieza.color)));
        pieza.rotulo->setPalette(paleta);
        if (pieza.rotulo == LblPto) continue;
        QFont letra = pieza.rotulo->font();
        letra.setItalic(Basico::Val(vista.inclinacion) != 0);
        pieza.rotulo->setFont(letra);
        const int fila = pieza.altura > 0 ? 0 : pieza.altura < 0 ? 2 : 1;
        muestra->addWidget(pieza.rotulo, fila, 1);
    }
}

Textos_DXF FrmDXF::Textos() const
{
    return {CbFormato->currentText(), TxAltura->text(), TxInclinacion->text(), TxDecimales->text()};
}

void FrmDXF::Mostrar_Con(const Origen_Dibujo& nuevo)
{
    origen = nuevo;
    LblMsg->clear();
    Pb1->setValue(0);
    botones.first()->setFocus();
    Mostrar_Modal();
}

void FrmDXF::Transformar(Modo_DXF modo)
{
    if (exportando) return;
    if (const QString falta = Tomar_Textos(Textos(), ajustes); !falta.isEmpty()) {
        Interfaz_Actual().Mensaje(falta, Icono::Exclamacion);
        return;
    }
    const QScopedValueRollback<bool> marca(exportando, true);
    Avance_Dialogo avance(*Pb1, *LblMsg);
    if (!Transformar_DXF(origen, modo, ajustes, avance) || !ChkVer->isChecked()) return;
    try {
        Interfaz_Actual().Arrancar(En_Instalacion("Convert.exe"), {origen.fichero});
    } catch (...) {
        Informe_Error("No se puede ver el dibujo", Error_En_Curso());
    }
}

void FrmDXF::Colocar()
{
    adjustSize();
    move(screen()->availableGeometry().center() - rect().center());
}

void FrmDXF::Al_Descargar()
{
    Tomar_Textos(Textos(), ajustes);
    try {
        Guardar_Ajustes_DXF(ajustes);
    } catch (...) {
        Informe_Error("No se han podido guardar los ajustes del dibujo", Error_En_Curso());
    }
}

void FrmDXF::closeEvent(QCloseEvent* evento)
{
    // The passes that are running still report to these controls.
    if (exportando)
        evento->ignore();
    else
        Ventana::closeEvent(evento);
}
