#include "tests/apoyo/Interfaz_Guion.h"

#include <QTest>
#include <stdexcept>

namespace {

template <typename T>
T Tomar(std::deque<T>& cola, const QString& que, const T& si_falta)
{
    if (cola.empty()) {
        QTest::qFail(qPrintable(QStringLiteral("No answer was queued for: ") + que), __FILE__, __LINE__);
        return si_falta;
    }
    T respuesta = cola.front();
    cola.pop_front();
    return respuesta;
}

} // namespace

Interfaz_Guion::Interfaz_Guion() : anterior(Poner_Interfaz(this))
{
    Proceso_Cancelado = false;
}

Interfaz_Guion::~Interfaz_Guion()
{
    Poner_Interfaz(anterior);
}

QStringList Interfaz_Guion::Textos() const
{
    QStringList lista;
    for (const Aviso& a : avisos) lista << a.texto;
    return lista;
}

void Interfaz_Guion::Mensaje(const QString& texto, Icono icono, const QString& titulo)
{
    avisos.append({texto, icono, titulo});
    if (al_avisar) al_avisar(avisos.last());
}

bool Interfaz_Guion::Preguntar(const QString& texto, Icono icono, const QString& titulo)
{
    avisos.append({texto, icono, titulo});
    return Tomar(respuestas, texto, false);
}

std::optional<QString> Interfaz_Guion::Pedir_Texto(const QString& titulo, const QString& texto,
                                                   const QString& inicial)
{
    preguntas_texto << titulo + u'|' + texto + u'|' + inicial;
    return Tomar(textos, texto, std::optional<QString>());
}

std::optional<Fichero_Elegido> Interfaz_Guion::Pedir_Fichero(const Peticion_Fichero& peticion)
{
    peticiones << peticion;
    if (ficheros.empty()) throw std::runtime_error("no file queued");  // an asking loop would never end
    return Tomar(ficheros, peticion.titulo, std::optional<Fichero_Elegido>());
}

void Interfaz_Guion::Pitar()
{
    ++pitidos;
}

void Interfaz_Guion::Cursor_Ocupado(bool ocupado)
{
    cursor += ocupado ? 1 : -1;
}

void Interfaz_Guion::Proceso_Abrir(const QString& etiqueta, qint64 maximo)
{
    ++procesos_abiertos;
    Proceso_Etiqueta(etiqueta, maximo);
}

void Interfaz_Guion::Proceso_Etiqueta(const QString& etiqueta, qint64 maximo)
{
    procesos << etiqueta;
    proceso_maximo = maximo;
    proceso_valor = 0;
}

void Interfaz_Guion::Proceso_Avanzar(qint64 valor)
{
    proceso_valor = valor;
    if (al_pasar) al_pasar();
}

void Interfaz_Guion::Proceso_Cerrar()
{
    --procesos_abiertos;
}

void Interfaz_Guion::Repintar()
{
    ++repintados;
}

void Interfaz_Guion::Dejar_Pasar()
{
    ++pasos;
    if (al_pasar) al_pasar();
}

void Interfaz_Guion::Arrancar(const QString& programa, const QStringList& argumentos)
{
    arrancados << programa + u'|' + argumentos.join(u' ');
}

void Interfaz_Guion::Ver_Texto(const QString& fichero, bool)
{
    vistos << fichero;
}

void Interfaz_Guion::Terminar(int estado)
{
    terminado << estado;
}
