#include "session/ui/FrmTxt.h"

#include "core/Ansi.h"
#include "core/Ficheros.h"
#include "core/Interfaz.h"
#include "core/ui/Piezas.h"

#include <QApplication>
#include <QFontDatabase>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QVBoxLayout>

FrmTxt::FrmTxt() : Ventana(QStringLiteral("FrmTxt"))
{
    setWindowTitle(QStringLiteral("Visualizador de Texto"));
    RTB = new QPlainTextEdit;
    RTB->setObjectName(QStringLiteral("RTB"));
    RTB->setReadOnly(true);
    RTB->setLineWrapMode(QPlainTextEdit::NoWrap);
    RTB->setUndoRedoEnabled(false);
    QPushButton* const BtnSal = Piezas::Boton("BtnSal", "&Cerrar");
    auto* const caja = new QVBoxLayout(this);
    caja->addWidget(RTB, 1);
    caja->addWidget(BtnSal, 0, Qt::AlignRight);
    setWindowFlag(Qt::WindowMaximizeButtonHint);
    resize(760, 520);
    Poner_Botones(BtnSal, nullptr);
    connect(BtnSal, &QPushButton::clicked, this, &Ventana::Descargar);
}

void FrmTxt::Ver(const QString& nombre, bool fija)
{
    setWindowTitle(QStringLiteral("Fichero : ") + nombre);
    // Columns line up only in a fixed pitch; the writers that ask for it name their font.
    QFont letra = QFontDatabase::systemFont(QFontDatabase::FixedFont);
    if (fija) letra.setFamilies({QStringLiteral("Courier New"), letra.family()});
    RTB->setFont(letra);
    RTB->clear();
    try {
        RTB->setPlainText(Ansi::A_Texto(Ficheros::Leer(nombre)));
    } catch (const Error_Ejecucion& e) {
        Informe_Error("Se produjo un error al leer del fichero " + nombre, e);
    }
    if (QApplication::activeModalWidget())
        Mostrar_Modal();
    else
        Mostrar();
}
