#include "export/GuardarN.h"

#include "core/ModEstTotal.h"
#include "export/Salidas.h"
#include "formats/ModFormatos.h"

QStringList Cargar_Campos_Exportar()
{
    const qsizetype fin = Campos_Exportar.indexOf(QString());
    return fin < 0 ? Campos_Exportar : Campos_Exportar.mid(0, fin);
}

bool Exportar_Sesion(qint64 id, const QString& maquina, int ope, const QString& tipo,
                     const QString& formato, const QString& fichero,
                     const Opciones_Exportar& opciones, Avance_Exportar& avance)
{
    const Modo_Salida& modo = Modo_En_Vigor();
    const Salida_Exportar* const salida = Salida_De(tipo);
    const Escritor escribir = salida ? salida->*modo.escritor : nullptr;
    if (!escribir) return false;
    bool hecho = false;
    try {
        const std::shared_ptr<Base> bd = Base::Abrir(Fichero_MDB);
        avance.Etiqueta("Formateando Datos... (1 de 2)");
        Interfaz_Actual().Repintar();
        const Origen_Exportar origen{
            *bd, id, maquina, ope, formato, Cargar_Campos_Exportar(), opciones, avance};
        const Datos_Formateados datos = modo.formatear(origen);

        avance.Valor(0);
        avance.Etiqueta("Exportando... (2 de 2)");
        Interfaz_Actual().Repintar();
        hecho = escribir({origen, datos, fichero, modo.campos_con_marca});
    } catch (...) {
        Informe_Error("Se produjo un error al formatear los datos", Error_En_Curso());
    }
    avance.Valor(0);
    return hecho;
}
