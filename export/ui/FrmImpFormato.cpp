#include "export/ui/FrmImpFormato.h"

#include "core/Ayuda.h"
#include "core/ModEstTotal.h"
#include "core/ui/Piezas.h"
#include "export/ui/Avance_Dialogo.h"
#include "export/ui/Vista_Paginas.h"

#include <QCheckBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QProgressBar>
#include <QPushButton>
#include <QRegularExpressionValidator>
#include <QScopedValueRollback>
#include <QVBoxLayout>

namespace {

QLineEdit* Caja_Cifras(const QString& nombre, const QString& inicial)
{
    QLineEdit* const caja = Piezas::Caja(nombre, 4);
    caja->setValidator(new QRegularExpressionValidator(QRegularExpression("[0-9]*"), caja));
    caja->setText(inicial);
    caja->setMaximumWidth(70);
    return caja;
}

} // namespace

FrmImpFormato::FrmImpFormato()
    : Ventana(QStringLiteral("FrmImpFormato")), RTB(new Vista_Paginas),
      LblPaginas(Piezas::Rotulo({}, "LblPaginas"))
{
    setWindowTitle(QStringLiteral("Impresión"));
    RTB->setObjectName(QStringLiteral("RTB"));
    RTB->setAccessibleName(QStringLiteral("Vista Preliminar"));
    QGroupBox* const vista = Piezas::Grupo("Vista Preliminar", "Frame1");
    auto* const hueco = new QVBoxLayout(vista);
    hueco->addWidget(RTB, 1);
    Pb1 = new QProgressBar;
    Pb1->setObjectName(QStringLiteral("Pb1"));
    Pb1->setRange(0, Avance_Dialogo::TOPE);
    Pb1->setTextVisible(false);
    Pb1->setMaximumHeight(12);
    auto* const caja = new QVBoxLayout(this);
    caja->addWidget(vista, 1);
    caja->addWidget(Hacer_Parametros());
    caja->addWidget(Pb1);
    caja->addLayout(Hacer_Botones());
    setWindowFlag(Qt::WindowMaximizeButtonHint);
    resize(760, 560);
    Recordar_Posicion("IMPRESION", 2);
    Poner_Botones(BtnImpr, BtnCer);
}

QGroupBox* FrmImpFormato::Hacer_Parametros()
{
    QGroupBox* const grupo = Piezas::Grupo("Parámetros", "Frame2");
    Check1 = Piezas::Casilla("Check1", "Mostrar Título");
    Check4 = Piezas::Casilla("Check4", "Mostrar SubTítulo");
    Check2 = Piezas::Casilla("Check2", "&Mostrar Cabeceras");
    Check5 = Piezas::Casilla("Check5", "&Centrar Datos Horizontalmente");
    Text1 = Piezas::Caja("Text1");
    Text2 = Piezas::Caja("Text2");
    Text1->setAccessibleName("Título");
    Text2->setAccessibleName("SubTítulo");
    TxtAnchura = Caja_Cifras("TxtAnchura", QString::number(Parametros_Hoja::ANCHURA_INICIAL));
    TxtAltura = Caja_Cifras("TxtAltura", {});
    auto* const caja = new QGridLayout(grupo);
    caja->addWidget(Check1, 0, 0);
    caja->addWidget(Piezas::Rotulo("Título"), 0, 1);
    caja->addWidget(Text1, 0, 2);
    caja->addWidget(Check4, 1, 0);
    caja->addWidget(Piezas::Rotulo("SubTítulo"), 1, 1);
    caja->addWidget(Text2, 1, 2);
    caja->addWidget(Check2, 2, 0);
    caja->addWidget(Check5, 2, 1, 1, 2);
    caja->addWidget(Piezas::Rotulo("Anchura de Página:"), 0, 3);
    caja->addWidget(TxtAnchura, 0, 4);
    caja->addWidget(Piezas::Rotulo("Altura:"), 1, 3);
    caja->addWidget(TxtAltura, 1, 4);
    caja->addWidget(LblPaginas, 2, 3, 1, 2);
    caja->setColumnStretch(2, 1);
    for (QCheckBox* const casilla : {Check1, Check2, Check4, Check5})
        connect(casilla, &QCheckBox::toggled, this, &FrmImpFormato::Renderizar);
    for (QLineEdit* const texto : {Text1, Text2, TxtAnchura, TxtAltura})
        connect(texto, &QLineEdit::textChanged, this, &FrmImpFormato::Renderizar);
    return grupo;
}

QLayout* FrmImpFormato::Hacer_Botones()
{
    BtnIns = Piezas::Boton("BtnIns", "&Datos del trabajo", "Insertar datos del trabajo");
    BtnEdtCol = Piezas::Boton("BtnEdtCol", "&Editar Cabeceras");
    BtnImpr = Piezas::Boton("BtnImpr", "&Imprimir");
    BtnCer = Piezas::Boton("BtnCer", "&Cerrar");
    QPushButton* const btnAyuda = Piezas::Boton("btnAyuda", "&Ayuda");
    connect(BtnIns, &QPushButton::clicked, this, [this] {
        if (modelo->Pedir_Trabajo()) Renderizar();
    });
    connect(BtnEdtCol, &QPushButton::clicked, this, [this] {
        if (modelo->Editar_Columnas()) Renderizar();
    });
    connect(BtnImpr, &QPushButton::clicked, this, [this] {
        Tomar_Parametros();
        modelo->Imprimir();
    });
    connect(BtnCer, &QPushButton::clicked, this, &Ventana::Descargar);
    connect(btnAyuda, &QPushButton::clicked, this, [] { Mostrar_Ayuda_Web("imprimir"); });
    return Piezas::Fila_De_Botones({BtnIns, BtnEdtCol, BtnImpr, BtnCer, btnAyuda});
}

void FrmImpFormato::Mostrar_Con(const Trabajo_Exportar& trabajo, const Opciones_Exportar& opciones)
{
    try {
        Avance_Dialogo avance(*Pb1, *LblPaginas);
        const Cursor_De_Espera espera;
        modelo = std::make_unique<Dialogo_Imprimir>(trabajo, opciones, avance);
    } catch (...) {
        Informe_Error("Se produjo un error al formatear los datos", Error_En_Curso());
        Descargar();
        return;
    }
    Pb1->setValue(0);
    {
        const QScopedValueRollback<bool> callado(llenando, true);
        Check2->setChecked(modelo->parametros.cabeceras);
    }
    Renderizar();
    RTB->setFocus();
    Mostrar_Modal();
}

void FrmImpFormato::Tomar_Parametros()
{
    Parametros_Hoja& p = modelo->parametros;
    p.con_titulo = Check1->isChecked();
    p.con_subtitulo = Check4->isChecked();
    p.titulo = Text1->text();
    p.subtitulo = Text2->text();
    p.cabeceras = Check2->isChecked();
    p.centrar = Check5->isChecked();
    p.anchura = TxtAnchura->text().toInt();
}

void FrmImpFormato::Renderizar()
{
    if (!modelo || llenando) return;
    Tomar_Parametros();
    try {
        const QByteArray texto = modelo->Renderizar();
        RTB->Poner(texto, modelo->Paginas(texto), Papel::A4(modelo->parametros.Apaisada()));
        const qsizetype paginas = RTB->Paginas().size();
        LblPaginas->setText(paginas == 1 ? QStringLiteral("1 página")
                                         : QStringLiteral("%1 páginas").arg(paginas));
    } catch (...) {
        // The preview stays as it was.
        Informe_Error("Se produjo un error al preparar la página", Error_En_Curso());
    }
}
