#pragma once

#include <QMainWindow>

class QTextBrowser;

/// File of the page that the program asks for: "DIR/Ayuda,clave.htm" is page clave.htm of
/// DIR/Ayuda. A folder's name may hold a comma, a page's doesn't.
QString Pagina_De_Argumento(const QString& argumento);

/// Small viewer of the help pages.
class Visor_Ayuda : public QMainWindow {
    Q_OBJECT
public:
    Visor_Ayuda();
    /// Shows a page; one that is missing is told in its place.
    void Abrir(const QString& pagina);

private:
    QTextBrowser* navegador;
};
