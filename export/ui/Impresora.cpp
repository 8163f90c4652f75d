#include "export/ui/Impresora.h"

#include "core/Error_Ejecucion.h"
#include "export/ui/Pintor_Pagina.h"

#include <QPrinter>
#include <QPrinterInfo>

bool Hay_Impresora()
{
    return !QPrinterInfo::defaultPrinter().isNull();
}

void Imprimir_En_Papel(const Impreso& impreso)
{
    QPrinter impresora(QPrinterInfo::defaultPrinter(), QPrinter::HighResolution);
    impresora.setDocName(impreso.nombre);
    impresora.setPageSize(QPageSize(QPageSize::A4));
    impresora.setPageOrientation(impreso.apaisado ? QPageLayout::Landscape : QPageLayout::Portrait);
    impresora.setFullPage(true);
    Pintar_Impreso(impresora, impreso);
    if (impresora.printerState() == QPrinter::Error) throw Error_Ejecucion(482);
}
