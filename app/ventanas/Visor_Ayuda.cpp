#include "app/ventanas/Visor_Ayuda.h"

#include <QAction>
#include <QFileInfo>
#include <QStyle>
#include <QTextBrowser>
#include <QToolBar>

QString Pagina_De_Argumento(const QString& argumento)
{
    QString pagina = argumento;
    pagina.replace(u'\\', u'/');
    const qsizetype coma = pagina.lastIndexOf(u',');
    if (coma >= 0) pagina[coma] = u'/';
    return pagina;
}

Visor_Ayuda::Visor_Ayuda() : navegador(new QTextBrowser)
{
    setObjectName(QStringLiteral("Visor_Ayuda"));
    setWindowTitle(QStringLiteral("Ayuda de Miraldos"));
    navegador->setObjectName(QStringLiteral("Navegador"));
    navegador->setOpenExternalLinks(true);
    navegador->document()->setDocumentMargin(18);
    setCentralWidget(navegador);
    auto* const barra = new QToolBar;
    barra->setMovable(false);
    barra->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    barra->setContextMenuPolicy(Qt::PreventContextMenu);
    addToolBar(barra);
    const auto boton = [&](const char* nombre, QStyle::StandardPixmap dibujo, const QString& texto,
                           const QKeySequence& tecla) {
        QAction* const accion = barra->addAction(style()->standardIcon(dibujo), texto);
        accion->setObjectName(nombre);
        accion->setShortcut(tecla);
        return accion;
    };
    QAction* const atras = boton("Atras", QStyle::SP_ArrowBack, "Atrás", QKeySequence::Back);
    QAction* const adelante =
        boton("Adelante", QStyle::SP_ArrowForward, "Adelante", QKeySequence::Forward);
    QAction* const indice =
        boton("Indice", QStyle::SP_FileDialogContentsView, "Índice", Qt::ALT | Qt::Key_Home);
    atras->setEnabled(false);
    adelante->setEnabled(false);
    connect(atras, &QAction::triggered, navegador, &QTextBrowser::backward);
    connect(adelante, &QAction::triggered, navegador, &QTextBrowser::forward);
    connect(indice, &QAction::triggered, this, [this] {
        navegador->setSource(navegador->source().resolved(QUrl(QStringLiteral("index.htm"))));
    });
    connect(navegador, &QTextBrowser::backwardAvailable, atras, &QAction::setEnabled);
    connect(navegador, &QTextBrowser::forwardAvailable, adelante, &QAction::setEnabled);
    connect(navegador, &QTextBrowser::sourceChanged, this, [this] {
        const QString titulo = navegador->documentTitle();
        setWindowTitle(titulo.isEmpty() ? QStringLiteral("Ayuda de Miraldos") : titulo);
    });
    resize(760, 640);
}

void Visor_Ayuda::Abrir(const QString& pagina)
{
    const QFileInfo fichero(pagina);
    if (fichero.isFile())
        navegador->setSource(QUrl::fromLocalFile(fichero.absoluteFilePath()));
    else
        navegador->setPlainText(QStringLiteral("No se encuentra la página de ayuda ") + pagina);
}
