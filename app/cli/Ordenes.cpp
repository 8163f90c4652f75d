#include "app/cli/Ordenes.h"

#include "app/cli/Ordenes_Brutos.h"
#include "app/cli/Ordenes_Codigos.h"
#include "app/cli/Ordenes_Conversion.h"
#include "app/cli/Ordenes_Export.h"
#include "app/cli/Ordenes_Sesion.h"
#include "app/cli/Ordenes_Transfer.h"
#include "core/Error_Ejecucion.h"

#include <algorithm>

namespace {

int Orden_Ayuda(const Contexto& c, const QStringList&)
{
    c.Linea("miraldos-cli [--dir DIRECTORIO] [--si] ORDEN ...");
    for (const Orden& o : Ordenes())
        c.Linea("  " + o.uso);
    return HECHO;
}

} // namespace

const QList<Orden>& Ordenes()
{
    static const QList<Orden> lista = {
        {"ayuda", "ayuda", Orden_Ayuda},
        {"modelos", "modelos", Orden_Modelos},
        {"operaciones", "operaciones --modelo NOMBRE", Orden_Operaciones},
        {"sesiones", "sesiones [--maquina CLAVE]", Orden_Sesiones},
        {"formatos", "formatos [--maquina CLAVE]", Orden_Formatos},
        {"ver", "ver ID [--campos]", Orden_Ver},
        {"formato-nuevo",
         "formato-nuevo --maquina CLAVE --ope N --nombre NOMBRE --campos \"A,B,C\" "
         "[--cabecera \"D,E\"] [--titulos] [--descripcion TEXTO]",
         Orden_Formato_Nuevo},
        {"formato-borrar", "formato-borrar --maquina CLAVE --nombre NOMBRE", Orden_Formato_Borrar},
        {"exportar", Uso_Exportar(), Orden_Exportar},
        {"dxf", Uso_DXF(), Orden_DXF},
        {"dxf-fichero", Uso_DXF_Fichero(), Orden_DXF_Fichero},
        {"imprimir", Uso_Imprimir(), Orden_Imprimir, true},
        {"plano", "plano ID --salida FICHERO.png|FICHERO.pdf|FICHERO.svg [--escala N]", Orden_Plano,
         true},
        {"exportar-bruto", Uso_Exportar_Bruto(), Orden_Exportar_Bruto},
        {"importar-bruto",
         "importar-bruto FICHERO... --modelo NOMBRE --ope N --nombre NOMBRE "
         "[--formato maquina|lineas]",
         Orden_Importar_Bruto},
        {"borrar", "borrar ID", Orden_Borrar},
        {"compactar", "compactar", Orden_Compactar},
        {"base", "base", Orden_Base},
        {"recuperar", "recuperar [COPIA]", Orden_Recuperar},
        {"convertidor", "convertidor FUNCION ARGUMENTO...", Orden_Convertidor},
        {"convertir",
         "convertir ENTRADA SALIDA [--eje N] [--perfil NOMBRE] [--seccion A:B] "
         "[--clase alineacion|rasante|transversal|puntos]",
         Orden_Convertir},
        {"monitorizar",
         "monitorizar --lecturas FICHERO --coordenadas FICHERO --salida FICHERO [--excel] "
         "[--trabajo TEXTO] [--descripcion TEXTO] [--operario TEXTO] [--temperatura TEXTO] "
         "[--fecha TEXTO] [--hora TEXTO]",
         Orden_Monitorizar},
        {"descargar",
         "descargar --modelo NOMBRE --ope N --puerto DISPOSITIVO --nombre NOMBRE [--velocidad V] "
         "[--espera S]",
         Orden_Descargar},
        {"enviar", Uso_Enviar(), Orden_Enviar},
        {"rescates", "rescates", Orden_Rescates},
        {"rescatar", "rescatar FICHERO --modelo NOMBRE --nombre NOMBRE [--ope N] [--forzar]",
         Orden_Rescatar},
        {"librerias", "librerias [--serie A|B]", Orden_Librerias},
        {"libreria-ver", "libreria-ver LIB --serie A|B", Orden_Libreria_Ver},
        {"libreria-guardar", "libreria-guardar LIB --serie A|B --descripcion D --fichero F",
         Orden_Libreria_Guardar},
        {"libreria-exportar", "libreria-exportar LIB --serie A|B --salida F",
         Orden_Libreria_Exportar},
        {"libreria-borrar", "libreria-borrar LIB --serie A|B", Orden_Libreria_Borrar},
        {"enviar-libreria",
         "enviar-libreria LIBRERIA --modelo NOMBRE --puerto DISPOSITIVO [--seguimiento] "
         "[--velocidad V]",
         Orden_Enviar_Libreria},
        {"recibir-libreria",
         "recibir-libreria --modelo NOMBRE --puerto DISPOSITIVO --destino base|fichero "
         "--nombre NOMBRE [--velocidad V]",
         Orden_Recibir_Libreria},
        {"tabla",
         "tabla ENTRADA SALIDA [--separador tabulacion|coma|espacio] "
         "[--version \"Excel 3.0\"|\"Excel 4.0\"|\"Excel 5.0\"|\"Excel 8.0\"] "
         "[--tabla NOMBRE] [--numeros]",
         Orden_Tabla},
    };
    return lista;
}

void Contexto::Fila(const QStringList& campos) const
{
    QStringList limpios = campos;
    for (QString& campo : limpios)
        for (const char16_t c : {u'\t', u'\r', u'\n'})
            campo.replace(QChar(c), u' ');
    Linea(limpios.join(u'\t'));
}

void Contexto::Linea(const QString& texto) const
{
    salida->write((texto + u'\n').toUtf8());
}

void Contexto::Mensaje(const QString& texto) const
{
    errores->write((texto + u'\n').toUtf8());
}

bool Hay_Que_Dibujar(const QStringList& palabras)
{
    return std::ranges::any_of(Ordenes(), [&](const Orden& orden) {
        return orden.dibuja && palabras.contains(orden.nombre);
    });
}

int Ejecutar_Orden(Contexto contexto, const QStringList& palabras)
{
    try {
        QStringList resto;
        for (qsizetype i = 0; i < palabras.size(); ++i) {
            if (palabras[i] == u"--") {
                resto += palabras.mid(i);
                break;
            }
            if (palabras[i] == u"--si") {
                contexto.si = true;
            } else if (palabras[i].startsWith(u"--dir=")) {
                contexto.dir = palabras[i].mid(6);
            } else if (palabras[i] == u"--dir") {
                if (i + 1 == palabras.size()) throw Error_Uso{"Falta el valor de --dir"};
                contexto.dir = palabras[++i];
            } else {
                resto << palabras[i];
            }
        }
        if (resto.isEmpty()) throw Error_Uso{"Falta la orden"};
        const QString nombre = resto.takeFirst();
        for (const Orden& o : Ordenes()) {
            if (o.nombre != nombre) continue;
            try {
                return o.ejecutar(contexto, resto);
            } catch (const Error_Uso& e) {
                throw Error_Uso{e.texto + "\nUso: miraldos-cli " + o.uso};
            }
        }
        throw Error_Uso{"Orden desconocida: " + nombre + " (véase miraldos-cli ayuda)"};
    } catch (const Error_Uso& e) {
        contexto.Mensaje(e.texto);
        return MAL_USO;
    } catch (const Orden_Rechazada&) {
        return RECHAZADO;
    } catch (...) {
        const Error_Ejecucion e = Error_En_Curso();
        contexto.Mensaje(QStringLiteral("(%1) %2").arg(e.numero).arg(e.descripcion));
        return RECHAZADO;
    }
}
