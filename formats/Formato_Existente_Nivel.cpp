#include "formats/Formato_Existente_Nivel.h"

#include "core/Sucesos.h"
#include "session/Nivel.h"

namespace {

const QString VACIO = QStringLiteral("Fichero Vacío"), OTRO = QStringLiteral("Otro");
constexpr qsizetype LETRAS_DE_ESTILO = 4;

struct Fila_Estilo {
    QStringView letras;
    const char16_t* estilo;
};
constexpr Fila_Estilo ESTILOS[] = {
    {u"gigi", u"Espalda-Frente"},
    {u"ggig", u"Espalda-Frente"},
    {u"giig", u"Espalda-Frente"},
    {u"gigg", u"Espalda-Frente"},
    {u"ghij", u"Espalda-Espalda-Frente-Frente"},
    {u"gijh", u"Espalda-Frente-Frente-Espalda"},
    {u"ffff", u"Medición Libre"},
    {u"fff", u"Medición Libre"},
    {u"ff", u"Medición Libre"},
    {u"f", u"Medición Libre"},
    {u"gi", u"Espalda-Frente"},
};

} // namespace

QString Estilo_De_Sesion(Base& bd, qint64 id)
{
    QString letras;
    Recorrido lineas =
        bd.Recorrer("Select Datos from Registros Where id = ? order by Secuencia", {id});
    while (letras.size() < LETRAS_DE_ESTILO && lineas.Siguiente())
        if (const QChar tipo = Tipo_NV400(lineas.Texto(0));
            !tipo.isNull() && QStringView(u"ghijf").contains(tipo))
            letras += tipo;
    if (letras.isEmpty()) return VACIO;
    for (const Fila_Estilo& fila : ESTILOS)
        if (letras == fila.letras) return QString::fromUtf16(fila.estilo);
    return OTRO;
}

Formato_Existente_Nivel::Formato_Existente_Nivel(const Sesion_Elegida& s, const QString& d)
    : Formato_Existente(s, d)
{
}

bool Formato_Existente_Nivel::Ver()
{
    if (!Formato_Existente::Ver()) return false;
    estilo = Estilo_De_Sesion(*Base_Datos, Sesion().id);
    return true;
}

void Formato_Existente_Nivel::Leer_Campos(const QString& nombre)
{
    mitades.Leer(*Base_Datos, Sesion().maquina, nombre, listas);
}

void Formato_Existente_Nivel::Guardar_Vista()
{
    if (indice < 0 || bloqueado) return;
    const QString nombre = nombres[indice];
    const QString& maquina = Sesion().maquina;
    if (Campos_Mitad(*Base_Datos, maquina, nombre, mitades.en_vista) == listas.elegidos) return;
    if (!Buscar_Formato(*Base_Datos, maquina, nombre)) return;
    Guardar_Mitad(*Base_Datos, maquina, nombre, mitades.en_vista, listas.elegidos);
    Q_EMIT Sucesos::Unico().formatos_cambiados();
}

void Formato_Existente_Nivel::Elegir_Mitad(Mitad_Nivel mitad)
{
    try {
        Guardar_Vista();
    } catch (...) {
        Informe_Error("Se produjo un error al guardar el formato", Error_En_Curso());
    }
    mitades.Mostrar(mitad, listas);
}

bool Formato_Existente_Nivel::Aceptar(const std::function<void()>& ocultar)
{
    if (estilo == VACIO) {
        Interfaz_Actual().Mensaje("El Fichero no contiene Puntos", Icono::Informacion);
        return false;
    }
    try {
        Guardar_Vista();
    } catch (...) {
        Informe_Error("Se produjo un error al guardar el formato", Error_En_Curso());
        return false;
    }
    return Formato_Existente::Aceptar(ocultar);
}

Trabajo_Exportar Formato_Existente_Nivel::Trabajo() const
{
    Trabajo_Exportar trabajo = Formato_Existente::Trabajo();
    trabajo.nivel = casillas;
    return trabajo;
}
