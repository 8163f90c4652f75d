#include "codes/Enlace_Librerias.h"

#include "codes/Peticiones_Codigos.h"
#include "core/Familia.h"
#include "core/Interfaz.h"
#include "transfer/enlace/Descarga.h"
#include "transfer/Peticiones_Transfer.h"
#include "transfer/Presentar_Envio.h"

namespace {

// Opens the port and shows the dialog of one of the two receptions.
void Recibir(const Destino_Libreria& destino, Descarga* descarga,
             const std::function<void()>& mostrar)
{
    if (!descarga || !descarga->Abrir_Puerto()) return;
    descarga->Preparar(int(Operacion::Libreria), destino.nombre, int(destino.destino));
    mostrar();
}

Resultado_Recepcion Guardar(const Datos_Recepcion& datos)
{
    Resultado_Recepcion resultado;
    const Libreria_Guardada hecho =
        Guardar_Libreria(datos.buffer, Destino(datos.destino), datos.nombre);
    resultado.completa = hecho.Completa();
    if (hecho.error)
        Informe_Error("Se produjo un error al guardar la librería; lo recibido se conserva",
                      *hecho.error);
    else if (!hecho.avisos.isEmpty())
        Interfaz_Actual().Mensaje(hecho.avisos.join('\r') + "\rLo recibido se conserva",
                                  Icono::Exclamacion);
    return resultado;
}

} // namespace

void Conectar_Librerias()
{
    Peticiones_Codigos& codigos = Peticiones_De_Codigos();
    codigos.Enviar = [](const QString& texto) { Abrir_Envio({ENVIO_LIBRERIA, {}, texto}); };
    codigos.Recibir_En_FrmSplash = [](const Destino_Libreria& destino) {
        const Peticiones_Transfer& pide = Peticiones_De_Transfer();
        Recibir(destino, pide.Dialogo_Descarga(), pide.Mostrar_Descarga);
    };
    codigos.Recibir_En_FrmSplash2 = [](const Destino_Libreria& destino) {
        if (Reclamar_La_En_Curso()) return;
        const Peticiones_Transfer& pide = Peticiones_De_Transfer();
        Recibir(destino, pide.Dialogo_Recepcion(), pide.Mostrar_Recepcion);
    };
    Peticiones_Transfer& transfer = Peticiones_De_Transfer();
    transfer.Recibir_Libreria = [](int operacion) {
        if (!Reclamar_La_En_Curso()) Recibir_Libreria(operacion);
    };
    transfer.Guardar_Libreria = Guardar;
}
