#include "formats/ui/Dialogos_Formatos.h"

#include "core/Interfaz.h"
#include "core/ui/Dialogos.h"
#include "core/ui/Piezas.h"
#include "formats/Peticiones_Formatos.h"
#include "formats/ui/FrmExistformato.h"
#include "formats/ui/FrmExistFormNV400.h"
#include "formats/ui/FrmNuevoformato.h"
#include "formats/ui/FrmNuevoFormatoNV400.h"

void Conectar_Dialogos_Formatos()
{
    Peticiones_Formatos& pide = Peticiones_De_Formatos();
    pide.Mostrar_Existente = [](Formato_Existente& modelo) {
        Dialogos::Unico<FrmExistformato>().Mostrar_Con(modelo);
    };
    pide.Mostrar_Nuevo = [](Formato_Nuevo& modelo) {
        Dialogos::Unico<FrmNuevoformato>().Mostrar_Con(modelo);
    };
    const auto falta = [](const QString& que) {
        Interfaz_Actual().Mensaje(Piezas::Texto_No_Disponible(que), Icono::Informacion);
    };
    pide.Mostrar_Existente_NV400 = [](Formato_Existente_Nivel& modelo) {
        Dialogos::Unico<FrmExistFormNV400>().Mostrar_Con(modelo);
    };
    pide.Mostrar_Nuevo_NV400 = [](Formato_Nuevo_Nivel& modelo) {
        Dialogos::Unico<FrmNuevoFormatoNV400>().Mostrar_Con(modelo);
    };
    pide.Abrir_Imprimir = [falta](const Trabajo_Exportar&) { falta("La impresión"); };
}
