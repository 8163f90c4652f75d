#include "app/cli/Instalacion.h"
#include "app/cli/Ordenes_Brutos.h"
#include "core/Ficheros.h"
#include "core/ModEstTotal.h"
#include "rawfiles/Fichero_Destino.h"
#include "rawfiles/Importar_De_Disco.h"
#include "rawfiles/ModFBruto.h"
#include "rawfiles/Peticiones_Rawfiles.h"
#include "rawfiles/Reconocer_Bruto.h"
#include "rawfiles/Salidas_Brutas.h"
#include "session/Peticiones_Sesion.h"
#include "session/Separadores.h"

#include <QFileInfo>
#include <QSet>
#include <QTemporaryDir>

namespace {

// The five texts of a levelling book, in their order.
const QStringList DATOS_IGN = {"serie", "mira1", "mira2", "operador", "empresa"};

// What stands in a file name for the session's number and its name.
const QString MARCA_ID = "{id}";
const QString MARCA_NOMBRE = "{nombre}";

QString Palabras_Separador()
{
    QStringList palabras;
    for (const Fila_Separador& fila : Separadores())
        palabras << fila.palabra;
    return palabras.join("|");
}

QString Leer_Separador(const Argumentos& a)
{
    const QString palabra = a.Opcion("separador", Separadores().front().palabra);
    const int indice = Indice_Separador(palabra);
    if (indice < 0) throw Error_Uso{"El separador es " + Palabras_Separador() + ": " + palabra};
    return Separadores()[std::size_t(indice)].caracter;
}

struct Pedido {
    QList<int> sesiones;
    bool todas = false, generales = false;
    QString patron, fichero, separador;
    QStringList datos_ign;
};

Pedido Leer_Pedido(const QStringList& palabras)
{
    const Argumentos a(palabras, QStringList{"patron", "salida", "separador"} + DATOS_IGN,
                       {"generales", "todas"});
    Pedido p;
    p.todas = a.Hay("todas");
    const QStringList sueltos = a.Sueltos(p.todas ? 0 : 1, p.todas ? 0 : palabras.size());
    for (const QString& id : sueltos)
        p.sesiones << Numero_De(id, "ID");
    p.generales = a.Hay("generales");
    p.patron = a.Obligada("patron");
    p.fichero = a.Obligada("salida");
    if (p.fichero.isEmpty()) throw Error_Uso{"Falta el nombre del fichero de salida"};
    p.separador = Leer_Separador(a);
    for (const QString& dato : DATOS_IGN)
        p.datos_ign << a.Opcion(dato);
    return p;
}

// Answers for the dialogs of the road while it lives: they come from the words.
class Respuestas {
public:
    Respuestas(const Contexto& contexto, const QString& separador, const QStringList& datos_ign)
        : sesion(Peticiones_De_Sesion()), brutos(Peticiones_De_Rawfiles())
    {
        Peticiones_De_Sesion().Pedir_Separador = [separador] { return separador; };
        Peticiones_De_Rawfiles().Pedir_Datos_IGN = [datos_ign] { return std::optional(datos_ign); };
        Peticiones_De_Rawfiles().Poner_Aviso = [&contexto](const QString& texto) {
            if (!texto.isEmpty()) contexto.Mensaje(texto);
        };
    }
    ~Respuestas()
    {
        Peticiones_De_Sesion() = sesion;
        Peticiones_De_Rawfiles() = brutos;
    }
    Respuestas(const Respuestas&) = delete;
    Respuestas& operator=(const Respuestas&) = delete;

private:
    Peticiones_Sesion sesion;
    Peticiones_Rawfiles brutos;
};

QList<Sesion_Elegida> Todas_Las_Sesiones()
{
    QList<Sesion_Elegida> lista;
    for (Recorrido r = Base_Datos->Recorrer("SELECT ID FROM Sesiones ORDER BY ID"); r.Siguiente();)
        if (const auto sesion = Buscar_Sesion(*Base_Datos, r.Entero(0))) lista << *sesion;
    return lista;
}

// The sessions asked for that offer the pattern; of all, those that don't are named and left out.
QList<Sesion_Elegida> Elegidas(const Contexto& c, const Instalacion& instalacion, const Pedido& p)
{
    QList<Sesion_Elegida> lista;
    if (p.todas) lista = Todas_Las_Sesiones();
    for (const int id : p.sesiones)
        lista << instalacion.Elegir_Sesion(id);
    for (qsizetype i = 0; i < lista.size();) {
        const QStringList patrones = Patrones_Brutos(lista[i]);
        if (patrones.contains(p.patron)) {
            ++i;
            continue;
        }
        c.Mensaje(QStringLiteral("La sesión %1 (%2, %3) no se exporta como %4; se exporta como %5")
                      .arg(QString::number(lista[i].id), lista[i].maquina, lista[i].wope, p.patron,
                           patrones.join(", ")));
        if (!p.todas) throw Orden_Rechazada{};
        lista.removeAt(i);
    }
    if (lista.isEmpty()) {
        c.Mensaje("No hay ninguna sesión que exportar");
        throw Orden_Rechazada{};
    }
    return lista;
}

QString Nombre_De(qint64 id)
{
    Recorrido r = Base_Datos->Recorrer("SELECT NFichero FROM Sesiones WHERE ID = ?", {id});
    QString nombre = r.Siguiente() ? r.Texto(0) : QString();
    for (QChar& c : nombre)
        if (c < u' ' || QStringView(u"/\\:*?\"<>|").contains(c)) c = u'_';
    return nombre;
}

QString Fichero_De(const Pedido& p, qint64 id)
{
    return Reemplazar(Reemplazar(p.fichero, MARCA_ID, QString::number(id)), MARCA_NOMBRE,
                      Nombre_De(id));
}

bool Exportar(const Pedido& p, const Sesion_Elegida& sesion, const QString& fichero)
{
    // The family in force is the session's, as in the browser.
    Clave_Estacion = sesion.maquina;
    return Escribir_Bruto({.id = sesion.id,
                           .maquina = sesion.maquina,
                           .patron = p.patron,
                           .fichero = fichero,
                           .generales = p.generales,
                           .temporal = Temporal_Bruto()});
}

// One file a session. Two of one name would lose the first.
bool Exportar_Cada_Una(const Contexto& c, const Pedido& p, const QList<Sesion_Elegida>& sesiones)
{
    QSet<QString> nombres;
    for (const Sesion_Elegida& s : sesiones)
        nombres << Fichero_De(p, s.id);
    if (nombres.size() != sesiones.size()) {
        c.Mensaje("Varias sesiones darían el mismo fichero: use {id} en el nombre");
        return false;
    }
    bool hechas = true;
    for (const Sesion_Elegida& s : sesiones)
        hechas = Exportar(p, s, Fichero_De(p, s.id)) && hechas;
    return hechas;
}

// One file for all of them, which appears when the last one went well.
bool Exportar_Juntas(const Pedido& p, const QList<Sesion_Elegida>& sesiones)
{
    Fichero_Destino::Comprobar(p.fichero);
    const QTemporaryDir carpeta;
    QByteArray todo;
    for (const Sesion_Elegida& s : sesiones) {
        const QString parte = carpeta.filePath(QString::number(s.id));
        if (!Exportar(p, s, parte)) return false;
        if (QFileInfo::exists(parte)) todo += Ficheros::Leer(parte);
    }
    if (!todo.isEmpty()) Ficheros::Escribir(p.fichero, todo);
    return true;
}

Forma_Bruta Forma_De(const QString& formato, const QByteArray& bytes)
{
    if (formato == u"maquina") return Forma_Bruta::Maquina;
    if (formato == u"lineas") return Forma_Bruta::Lineas;
    return Reconocer_Bruto(bytes).forma;
}

// @return false when nothing or not all was stored
bool Importar(const Contexto& c, const QString& fichero, const QString& nombre, int ope,
              const QString& formato)
{
    if (!FileExist(fichero)) {
        c.Mensaje("El Fichero especificado no existe: " + fichero);
        return false;
    }
    const QByteArray bytes = Ficheros::Leer(fichero);
    const Forma_Bruta forma = Forma_De(formato, bytes);
    if (!Confirmar_Aspecto(bytes, forma, ope)) return false;
    const Importacion hecho = Importar_Por_Familia(fichero, nombre, ope, forma);
    if (!hecho.sesion.isEmpty()) c.Linea(hecho.sesion);
    return hecho.completa;
}

} // namespace

QString Uso_Exportar_Bruto()
{
    return "exportar-bruto ID...|--todas --patron \"*.hd6\" --salida FICHERO [--separador " +
           Palabras_Separador() +
           "] [--serie S --mira1 T --mira2 T --operador T --empresa T] [--generales]";
}

int Orden_Exportar_Bruto(const Contexto& c, const QStringList& palabras)
{
    const Pedido p = Leer_Pedido(palabras);
    const Instalacion instalacion(c);
    const Respuestas respuestas(c, p.separador, p.datos_ign);
    const QList<Sesion_Elegida> sesiones = Elegidas(c, instalacion, p);
    const bool una_cada_una = p.fichero.contains(MARCA_ID) || p.fichero.contains(MARCA_NOMBRE);
    const bool hecho = una_cada_una           ? Exportar_Cada_Una(c, p, sesiones)
                       : sesiones.size() == 1 ? Exportar(p, sesiones.first(), p.fichero)
                                              : Exportar_Juntas(p, sesiones);
    return hecho ? HECHO : RECHAZADO;
}

int Orden_Importar_Bruto(const Contexto& c, const QStringList& palabras)
{
    const Argumentos a(palabras, {"modelo", "ope", "nombre", "formato"});
    const QStringList ficheros = a.Sueltos(1, palabras.size());
    const QString modelo = a.Obligada("modelo");
    const int ope = a.Numero("ope");
    const QString nombre = a.Obligada("nombre");
    const QString formato = a.Opcion("formato");
    if (nombre.isEmpty()) throw Error_Uso{"El nombre de la sesión no puede quedar en blanco"};
    if (a.Hay("formato") && !QStringList{"maquina", "lineas"}.contains(formato))
        throw Error_Uso{"El formato es maquina o lineas: " + formato};
    const Instalacion instalacion(c);
    const Respuestas respuestas(c, QString(), {});
    instalacion.Elegir_Modelo(modelo);
    instalacion.Comprobar_Operacion(ope, "D");
    bool hechos = true;
    for (const QString& fichero : ficheros)
        hechos = Importar(c, fichero, nombre, ope, formato) && hechos;
    return hechos ? HECHO : RECHAZADO;
}
