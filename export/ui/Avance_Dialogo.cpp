#include "export/ui/Avance_Dialogo.h"

#include "core/Interfaz.h"

#include <QLabel>
#include <QProgressBar>

namespace {

constexpr qint64 MS_PASADA = 40;

} // namespace

Avance_Dialogo::Avance_Dialogo(QProgressBar& b, QLabel& e) : barra(b), rotulo(e)
{
    reloj.start();
}

void Avance_Dialogo::Etiqueta(const QString& texto)
{
    rotulo.setText(texto);
}

void Avance_Dialogo::Valor(qint64 valor)
{
    if (valor > 0 && valor < maximo && reloj.elapsed() < MS_PASADA) return;
    reloj.restart();
    barra.setValue(maximo > 0 ? int(double(valor) / double(maximo) * TOPE) : 0);
    Interfaz_Actual().Repintar();
}
