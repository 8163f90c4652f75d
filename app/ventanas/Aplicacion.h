#pragma once

#include <QApplication>

class Error_Ejecucion;

/// The application of the desktop program: what no routine traps ends here. A failure shows its
/// box, is written to the crash log and ends the run with a status other than 0.
class Aplicacion : public QApplication {
    Q_OBJECT
public:
    Aplicacion(int& argc, char** argv);
    bool notify(QObject* receptor, QEvent* evento) override;
};

/// Status of a run that a failure ended.
inline constexpr int ESTADO_FALLO = 1;

/// Deals with a failure that nothing has trapped. A second one, while the first one's box stands,
/// is only written down.
void Fallo_Sin_Atrapar(const Error_Ejecucion& error);
