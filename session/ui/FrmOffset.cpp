#include "session/ui/FrmOffset.h"

#include "core/ModEstTotal.h"
#include "core/ui/Dialogos.h"
#include "core/ui/Piezas.h"
#include "session/Desplazamiento.h"

#include <QApplication>
#include <QClipboard>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLineEdit>
#include <QPushButton>
#include <QTimer>
#include <QVBoxLayout>

FrmOffset::FrmOffset() : Ventana(QStringLiteral("FrmOffset"))
{
    setWindowTitle(QStringLiteral("Aplicar Desplazamientos a Coordenadas"));
    auto* const datos = new QFormLayout;
    datos->addRow("X :", TxtCx = Piezas::Caja("TxtCx"));
    datos->addRow("Y :", TxtCy = Piezas::Caja("TxtCy"));
    datos->addRow("Z :", TxtCz = Piezas::Caja("TxtCz"));
    for (QLineEdit* const caja : {TxtCx, TxtCy, TxtCz}) {
        caja->installEventFilter(this);
        // Only keys write here: what is dropped in or pasted from a menu would pass unchecked.
        caja->setAcceptDrops(false);
        caja->setContextMenuPolicy(Qt::NoContextMenu);
    }
    QPushButton* const BtnAce = Piezas::Boton("BtnAce", "&Aceptar");
    QPushButton* const BtnCan = Piezas::Boton("BtnCan", "&Cancelar");
    auto* const botones = Piezas::Fila_De_Botones({BtnAce, BtnCan});
    auto* const caja = new QVBoxLayout(this);
    caja->addLayout(datos);
    caja->addLayout(botones);
    setMinimumWidth(380);
    Poner_Botones(BtnAce, BtnCan);
    connect(BtnAce, &QPushButton::clicked, this, &FrmOffset::BtnAce_Click);
    connect(BtnCan, &QPushButton::clicked, this, &Ventana::Descargar);
    Quitar_Desplazamientos();
}

void FrmOffset::Mostrar_Ejes(bool cx, bool cy, bool cz, const QString& formato)
{
    TxtCx->setEnabled(cx);
    TxtCy->setEnabled(cy);
    TxtCz->setEnabled(cz);
    formato_pedido = formato;
    for (QLineEdit* const caja : {TxtCx, TxtCy, TxtCz})
        if (caja->isEnabled()) {
            caja->setFocus();
            break;
        }
    Mostrar_Modal();
}

void FrmOffset::Al_Descargar()
{
    // The frame's close box is a cancel too.
    Cancelado = !aceptado;
}

void FrmOffset::BtnAce_Click()
{
    Poner_Desplazamientos(TxtCx->text(), TxtCy->text(), TxtCz->text(), formato_pedido);
    aceptado = true;
    Descargar();
}

void FrmOffset::Teclear(QLineEdit& caja, QChar tecla)
{
    const Efecto_Tecla efecto = Tecla_Desplazamiento(caja.text(), caja.cursorPosition(), tecla);
    if (efecto.pita) Interfaz_Actual().Pitar();
    if (efecto.texto) {
        caja.setText(*efecto.texto);
        caja.setCursorPosition(int(efecto.caret));
    } else if (efecto.pasa && tecla.unicode() == 8) {
        caja.backspace();
    } else if (efecto.pasa) {
        caja.insert(tecla);
    }
}

bool FrmOffset::eventFilter(QObject* objeto, QEvent* evento)
{
    auto* const caja = qobject_cast<QLineEdit*>(objeto);
    if (caja && evento->type() == QEvent::FocusIn) {
        // The box places its caret after this event: the selection must come behind that.
        QTimer::singleShot(0, caja, &QLineEdit::selectAll);
    }
    if (!caja || evento->type() != QEvent::KeyPress) return Ventana::eventFilter(objeto, evento);
    const auto& tecla = static_cast<const QKeyEvent&>(*evento);
    if (tecla.matches(QKeySequence::Paste)) {
        const QString pegado = QApplication::clipboard()->text();
        for (const QChar c : pegado)
            Teclear(*caja, c);
        return true;
    }
    const QString texto = tecla.text();
    const bool escribe = texto.size() == 1 && (texto.at(0).isPrint() || texto.at(0) == QChar(8)) &&
                         !(tecla.modifiers() & (Qt::ControlModifier | Qt::AltModifier));
    if (!escribe) return Ventana::eventFilter(objeto, evento);
    Teclear(*caja, texto.at(0));
    return true;
}

bool Pedir_Desplazamientos(bool cx, bool cy, bool cz, const QString& formato)
{
    const QPointer<FrmOffset> frm(&Dialogos::Unico<FrmOffset>());
    frm->Mostrar_Ejes(cx, cy, cz, formato);
    return frm && !frm->Cancelado;
}
