#include "formats/Formatos_Nivel.h"

#include "core/Sucesos.h"
#include "core/Texto_SQL.h"
#include "formats/Nombre_Formato.h"

#include <algorithm>

namespace {

constexpr Mitad_Nivel MITADES[] = {Mitad_Nivel::Cabecera, Mitad_Nivel::Detalle};

std::size_t Lugar(Mitad_Nivel mitad)
{
    return std::size_t(mitad);
}

// The fields of a half of a format, as a condition. The family belongs to it: a format of another
// one may have the same name.
QString De_La_Mitad(const QString& maquina, const QString& nombre, Mitad_Nivel mitad)
{
    return "Left(Right(Campo,2),1)='" + Clave_De(mitad) +
           "' and Nombre = " + Literal_Formato(nombre) + " and Maquina = '" + maquina + "'";
}

void Escribir_Mitad(Base& bd, const QString& maquina, const QString& nombre, Mitad_Nivel mitad,
                    const QStringList& campos)
{
    bd.Execute("Delete From Formatos2 where " + De_La_Mitad(maquina, nombre, mitad));
    for (qsizetype i = 0; i < campos.size(); ++i)
        bd.Execute("Insert Into Formatos2 (Maquina,Nombre,Sec,Campo) VALUES ('" + maquina + "'," +
                   Literal_Formato(nombre) + "," + QString::number(i) + ",'" +
                   Doblar(Marcar_Campo_Nivel(campos[i], mitad)) + "')");
}

void Escribir_Mitades(Base& bd, const Formato& formato, const Campos_Nivel& campos)
{
    for (const Mitad_Nivel mitad : MITADES)
        Escribir_Mitad(bd, formato.maquina, formato.nombre, mitad, campos[Lugar(mitad)]);
}

// Whether a format of the name stands there, in whatever capitals.
bool Hay_Formato(Base& bd, const Formato& formato)
{
    Recorrido filas = bd.Recorrer(
        "Select * from Formatos1 where ucase(nombre)=" + Literal_Formato(formato.nombre.toUpper()) +
        " and Maquina = '" + formato.maquina + "'");
    return filas.Siguiente();
}

} // namespace

QList<Campo_Ofrecido> Ofrecer_Mitad(Base& bd, const QString& maquina, Mitad_Nivel mitad)
{
    Recorrido campos =
        bd.Recorrer("Select Id,Campo,Digitos,ForSalida From Campos Where Maquina = '" + maquina +
                    "' and Id = '" + Clave_De(mitad) + "' order by Orden");
    QList<Campo_Ofrecido> lista;
    while (campos.Siguiente())
        lista << Campo_Ofrecido{campos.Texto(1), campos.Texto(3)};
    return lista;
}

QStringList Campos_Mitad(Base& bd, const QString& maquina, const QString& nombre, Mitad_Nivel mitad)
{
    Recorrido campos = bd.Recorrer("select Nombre,Campo From Formatos2 Where " +
                                   De_La_Mitad(maquina, nombre, mitad) + " order by Sec");
    QStringList lista;
    while (campos.Siguiente())
        lista << Nombre_Campo_Nivel(campos.Texto(1));
    return lista;
}

void Guardar_Mitad(Base& bd, const QString& maquina, const QString& nombre, Mitad_Nivel mitad,
                   const QStringList& campos)
{
    Transaccion transaccion(bd);
    Escribir_Mitad(bd, maquina, nombre, mitad, campos);
    transaccion.Confirmar();
}

void Guardar_Formato_Nivel(Base& bd, const Formato& formato, const Campos_Nivel& campos, bool nuevo)
{
    if (nuevo && Hay_Formato(bd, formato)) throw Error_Ejecucion(3022);
    Transaccion transaccion(bd);
    Formato cabeza = formato;
    cabeza.campos.clear();
    Guardar_Formato(bd, cabeza, nuevo);
    Escribir_Mitades(bd, formato, campos);
    transaccion.Confirmar();
    Q_EMIT Sucesos::Unico().formatos_cambiados();
}

bool Cambiar_Formato_Nivel(Base& bd, const Formato& formato, const Campos_Nivel& campos)
{
    Transaccion transaccion(bd);
    Formato cabeza = formato;
    cabeza.campos.clear();
    if (!Cambiar_Formato(bd, cabeza)) return false;
    Escribir_Mitades(bd, formato, campos);
    transaccion.Confirmar();
    Q_EMIT Sucesos::Unico().formatos_cambiados();
    return true;
}

void Dos_Mitades::Leer(Base& bd, const QString& maquina, const QString& nombre, Dos_Listas& vista)
{
    for (const Mitad_Nivel mitad : MITADES) {
        Dos_Listas& lista = listas[Lugar(mitad)];
        lista.Vaciar();
        if (!nombre.isEmpty()) lista.elegidos = Campos_Mitad(bd, maquina, nombre, mitad);
        ofrecidos[Lugar(mitad)] = Ofrecer_Mitad(bd, maquina, mitad);
        for (const Campo_Ofrecido& campo : ofrecidos[Lugar(mitad)])
            lista.Ofrecer(campo.nombre);
    }
    vista = listas[Lugar(en_vista)];
}

void Dos_Mitades::Mostrar(Mitad_Nivel mitad, Dos_Listas& vista)
{
    listas[Lugar(en_vista)] = vista;
    en_vista = mitad;
    vista = listas[Lugar(mitad)];
}

Campos_Nivel Dos_Mitades::Elegidos(const Dos_Listas& vista) const
{
    Campos_Nivel campos;
    for (const Mitad_Nivel mitad : MITADES)
        campos[Lugar(mitad)] = mitad == en_vista ? vista.elegidos : listas[Lugar(mitad)].elegidos;
    return campos;
}

QString Dos_Mitades::Rotulo(const QString& campo) const
{
    const auto& lista = ofrecidos[Lugar(en_vista)];
    const auto fila = std::ranges::find(lista, campo, &Campo_Ofrecido::nombre);
    return fila == lista.end() || fila->forsalida.isEmpty() ? campo
                                                            : campo + "   " + fila->forsalida;
}
