#include "tests/apoyo/Interfaz_Guion.h"

#include <QTest>
#include <stdexcept>

namespace {

// Outside a test function there is nothing to fail but the program.
void Fallar(const QString& motivo)
{
    if (!QTest::currentTestFunction()) qFatal("%s", qPrintable(motivo));
    QTest::qFail(qPrintable(motivo), __FILE__, __LINE__);
}

template <typename T> T Tomar(std::deque<T>& cola, const QString& que, const T& si_falta)
{
    if (cola.empty()) {
        Fallar("No answer was queued for: " + que);
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
    // A test that has failed already left its script where it stood.
    if (QTest::currentTestFailed()) return;
    const QStringList sin_mirar = avisos.Sin_Mirar();
    if (!sin_mirar.isEmpty())
        Fallar("Boxes that the test did not expect: " + sin_mirar.join(" | "));
    const std::size_t sobran = respuestas.size() + textos.size() + ficheros.size();
    if (sobran > 0)
        Fallar(QStringLiteral("Answers that nobody asked for: %1 to questions, %2 texts, %3 files")
                   .arg(respuestas.size())
                   .arg(textos.size())
                   .arg(ficheros.size()));
}

QStringList Interfaz_Guion::Lista_Avisos::Sin_Mirar() const
{
    QStringList textos;
    for (const Aviso& aviso : lista.mid(std::min(miradas, lista.size())))
        textos << aviso.texto;
    return textos;
}

QStringList Interfaz_Guion::Textos() const
{
    QStringList lista;
    for (const Aviso& a : avisos)
        lista << a.texto;
    return lista;
}

void Interfaz_Guion::Mensaje(const QString& texto, Icono icono, const QString& titulo)
{
    const Aviso aviso{texto, icono, titulo};
    avisos.append(aviso);
    if (al_avisar) al_avisar(aviso);
}

bool Interfaz_Guion::Preguntar(const QString& texto, Icono icono, const QString& titulo)
{
    const Aviso aviso{texto, icono, titulo};
    avisos.append(aviso);
    if (al_avisar) al_avisar(aviso);
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
    if (ficheros.empty())
        throw std::runtime_error("no file queued"); // an asking loop would never end
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
