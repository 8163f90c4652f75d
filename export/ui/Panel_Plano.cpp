#include "export/ui/Panel_Plano.h"

#include "core/Ficheros_Propios.h"
#include "core/ModEstTotal.h"
#include "core/ui/Piezas.h"
#include "export/ui/Pintor_Plano.h"
#include "export/ui/Visor_Plano.h"

#include <algorithm>
#include <QCheckBox>
#include <QFile>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPainter>
#include <QPrinter>
#include <QPrinterInfo>
#include <QPushButton>
#include <QRegularExpressionValidator>
#include <QSignalBlocker>
#include <QVBoxLayout>

Panel_Plano::Panel_Plano() : visor(new Visor_Plano)
{
    visor->setObjectName(QStringLiteral("Visor"));
    LblDicho = Piezas::Rotulo({}, "LblDicho");
    LblAvisos = Piezas::Rotulo({}, "LblAvisos");
    auto* const caja = new QGridLayout(this);
    caja->setContentsMargins(0, 0, 0, 0);
    caja->addWidget(visor, 0, 0);
    caja->addWidget(Hacer_Lado(), 0, 1);
    caja->addWidget(LblDicho, 1, 0);
    caja->addWidget(LblAvisos, 2, 0, 1, 2);
    caja->setColumnStretch(0, 1);
    caja->setRowStretch(0, 1);
    connect(visor, &Visor_Plano::dicho, LblDicho, &QLabel::setText);
}

QWidget* Panel_Plano::Hacer_Lado()
{
    auto* const lado = new QWidget;
    lado->setFixedWidth(170);
    LstCapas = new QListWidget;
    LstCapas->setObjectName(QStringLiteral("LstCapas"));
    LstCapas->setAccessibleName(QStringLiteral("Capas"));
    TxBuscar = Piezas::Caja("TxBuscar");
    TxBuscar->setPlaceholderText(QStringLiteral("Nombre del punto"));
    TxEscala = Piezas::Caja("TxEscala", 8);
    TxEscala->setPlaceholderText(QStringLiteral("la que quepa"));
    TxEscala->setValidator(new QRegularExpressionValidator(QRegularExpression("[0-9]*"), TxEscala));
    QPushButton* const BtnBuscar = Piezas::Boton("BtnBuscar", "Buscar");
    QPushButton* const BtnTodo = Piezas::Boton("BtnTodo", "Ver todo");
    QPushButton* const BtnMedir = Piezas::Boton("BtnMedir", "Medir");
    QPushButton* const BtnImprimir = Piezas::Boton("BtnImprimir", "Imprimir");
    QPushButton* const BtnGuardar = Piezas::Boton("BtnGuardar", "Guardar plano");
    BtnMedir->setCheckable(true);
    auto* const caja = new QVBoxLayout(lado);
    caja->setContentsMargins(0, 0, 0, 0);
    caja->addWidget(Piezas::Rotulo("Capas"));
    caja->addWidget(LstCapas, 1);
    caja->addWidget(TxBuscar);
    for (QPushButton* const boton : {BtnBuscar, BtnTodo, BtnMedir})
        caja->addWidget(boton);
    caja->addWidget(Piezas::Rotulo("Escala 1:"));
    caja->addWidget(TxEscala);
    for (QPushButton* const boton : {BtnImprimir, BtnGuardar})
        caja->addWidget(boton);
    const auto botones = lado->findChildren<QPushButton*>();
    for (QPushButton* const boton : botones)
        boton->setAutoDefault(false);
    connect(LstCapas, &QListWidget::itemChanged, this, [this](const QListWidgetItem* fila) {
        visor->Poner_Visible(LstCapas->row(fila), fila->checkState() == Qt::Checked);
    });
    connect(TxBuscar, &QLineEdit::returnPressed, this, &Panel_Plano::Buscar);
    connect(BtnBuscar, &QPushButton::clicked, this, &Panel_Plano::Buscar);
    connect(BtnTodo, &QPushButton::clicked, visor, &Visor_Plano::Encajar);
    connect(BtnMedir, &QPushButton::toggled, visor, &Visor_Plano::Poner_Medida);
    connect(BtnImprimir, &QPushButton::clicked, this, &Panel_Plano::Imprimir);
    connect(BtnGuardar, &QPushButton::clicked, this, &Panel_Plano::Guardar);
    return lado;
}

void Panel_Plano::Poner(const Plano_Hecho& hecho, const QString& de)
{
    nombre = de;
    visor->Poner(hecho.plano);
    const QSignalBlocker callada(LstCapas);
    LstCapas->clear();
    for (const Capa_Plano& capa : hecho.plano.capas) {
        auto* const fila = new QListWidgetItem(capa.nombre, LstCapas);
        fila->setFlags(Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemIsUserCheckable);
        fila->setCheckState(capa.visible ? Qt::Checked : Qt::Unchecked);
    }
    const auto& puntos = hecho.plano.puntos;
    QString avisos = QStringLiteral("%1 puntos").arg(puntos.size());
    const auto contar = [&](const QString& que, qint64 cuantos) {
        if (cuantos > 0) avisos += QStringLiteral("   %1: %2").arg(que).arg(cuantos);
    };
    contar("repetidos", std::ranges::count_if(puntos, &Punto_De_Plano::repetido));
    contar("muy alejados", std::ranges::count_if(puntos, &Punto_De_Plano::lejano));
    contar("sin dibujar", hecho.omitidos + hecho.lineas_cortas.size());
    LblAvisos->setText(avisos);
    visor->setFocus();
}

void Panel_Plano::Buscar()
{
    if (visor->Ir_A(TxBuscar->text())) {
        visor->setFocus();
        return;
    }
    Interfaz_Actual().Pitar();
    LblDicho->setText(QStringLiteral("No hay ningún punto ") + TxBuscar->text());
}

double Panel_Plano::Escala_Pedida() const
{
    return TxEscala->text().toDouble();
}

void Panel_Plano::Guardar()
{
    try {
        const Hoja_Plano hoja = Preparar_Hoja(visor->Mostrado(), Escala_Pedida());
        const auto elegido = Interfaz_Actual().Pedir_Fichero(
            {.titulo = "Guardar como ...",
             .filtro = "Documento PDF (*.pdf)|*.pdf|Imagen (*.png)|*.png|Dibujo SVG (*.svg)|*.svg",
             .carpeta = En_Instalacion("ficheros"),
             .extension = "pdf",
             .guardar = true});
        if (!elegido || elegido->nombre.isEmpty()) return;
        if (QFile::exists(elegido->nombre) &&
            !Interfaz_Actual().Preguntar("El fichero ya existe, ¿ Desea reemplazarlo?",
                                         Icono::Exclamacion))
            return;
        Comprobar_Destino(elegido->nombre);
        Guardar_Hoja(visor->Mostrado(), hoja, elegido->nombre);
    } catch (...) {
        Informe_Error("No se ha podido guardar el plano", Error_En_Curso());
    }
}

void Panel_Plano::Imprimir()
{
    if (QPrinterInfo::defaultPrinter().isNull()) {
        Guardar();
        return;
    }
    try {
        const Hoja_Plano hoja = Preparar_Hoja(visor->Mostrado(), Escala_Pedida());
        QPrinter impresora(QPrinterInfo::defaultPrinter(), QPrinter::HighResolution);
        impresora.setDocName(nombre);
        impresora.setPageSize(QPageSize(QPageSize::A4));
        impresora.setPageOrientation(hoja.apaisada ? QPageLayout::Landscape
                                                   : QPageLayout::Portrait);
        impresora.setFullPage(true);
        QPainter pintor;
        if (!pintor.begin(&impresora)) throw Error_Ejecucion(482);
        pintor.scale(impresora.logicalDpiX() / 72.0, impresora.logicalDpiY() / 72.0);
        Pintar_Hoja(pintor, visor->Mostrado(), hoja);
        if (!pintor.end()) throw Error_Ejecucion(482);
    } catch (...) {
        Informe_Error("No se ha podido imprimir el plano", Error_En_Curso());
    }
}
