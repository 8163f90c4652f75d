#include "core/ui/Estilo.h"

#include "core/ui/Traductor_Qt.h"

#include <QApplication>
#include <QLocale>
#include <QPalette>
#include <QStyleFactory>
#include <QStyleHints>

namespace {

QPalette Colores()
{
    QPalette p;
    const QColor texto(0x22, 0x2b, 0x33), apagado(0x8c, 0x95, 0x9c);
    p.setColor(QPalette::Window, QColor(0xee, 0xf1, 0xf3));
    p.setColor(QPalette::WindowText, texto);
    p.setColor(QPalette::Base, Qt::white);
    p.setColor(QPalette::AlternateBase, QColor(0xf4, 0xf7, 0xf9));
    p.setColor(QPalette::Text, texto);
    p.setColor(QPalette::Button, QColor(0xe3, 0xe8, 0xeb));
    p.setColor(QPalette::ButtonText, texto);
    p.setColor(QPalette::ToolTipBase, QColor(0xff, 0xfd, 0xe8));
    p.setColor(QPalette::ToolTipText, texto);
    p.setColor(QPalette::PlaceholderText, apagado);
    p.setColor(QPalette::Highlight, QColor(0x2f, 0x6f, 0x8f));
    p.setColor(QPalette::HighlightedText, Qt::white);
    p.setColor(QPalette::Link, QColor(0x1d, 0x5f, 0x86));
    for (const auto papel : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
        p.setColor(QPalette::Disabled, papel, apagado);
    p.setColor(QPalette::Disabled, QPalette::Highlight, QColor(0xb9, 0xc3, 0xc9));
    return p;
}

} // namespace

void Aplicar_Estilo(QApplication& aplicacion)
{
    QLocale::setDefault(QLocale(QLocale::Spanish, QLocale::Spain));
    QApplication::setStyle(QStyleFactory::create(QStringLiteral("Fusion")));
    QApplication::setPalette(Colores());
    QApplication::styleHints()->setShowShortcutsInContextMenus(true);
    QCoreApplication::installTranslator(new Traductor_Qt(
        QCoreApplication::applicationDirPath() + QStringLiteral("/idioma"), &aplicacion));
}
