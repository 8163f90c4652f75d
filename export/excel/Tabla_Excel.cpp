#include "export/excel/Tabla_Excel.h"

#include "core/Error_Ejecucion.h"

#include <cmath>

static Hoja_Excel& Buscar_Hoja(Libro_Excel& libro, const QString& nombre)
{
    return libro.Hoja(nombre.endsWith(u'$') ? nombre.chopped(1) : nombre);
}

Tabla_Excel::Tabla_Excel(Libro_Excel& libro, const QString& nombre)
    : hoja(Buscar_Hoja(libro, nombre))
{
    const Rango usado = hoja.Rango_Usado();
    if (!usado.Vacio()) {
        cabecera = usado.fila;
        ultima = usado.fila_hasta;
        primera_columna = usado.columna;
    }
    actual = cabecera + 1;
    for (const Celda_Situada& celda : hoja.Fila(cabecera)) {
        if (celda.tipo == Celda::Tipo::Nada) continue;
        while (columnas.size() < celda.columna - primera_columna)
            columnas << QString();
        columnas << (celda.tipo == Celda::Tipo::Texto ? celda.texto
                                                      : QString::number(celda.numero));
    }
    while (!columnas.isEmpty() && columnas.last().isEmpty())
        columnas.removeLast();
    if (ultima == cabecera) return;
    for (int campo = 0; campo < columnas.size(); ++campo) {
        Celda celda = hoja.Leer(ultima, primera_columna + campo);
        celda.tipo = Celda::Tipo::Nada;
        celda.texto.clear();
        celda.numero = 0;
        aspectos.push_back(celda);
    }
}

// Looks of a field of the last record that was there at the start.
Celda Tabla_Excel::Aspecto(int campo) const
{
    return std::size_t(campo) < aspectos.size() ? aspectos[std::size_t(campo)] : Celda();
}

void Tabla_Excel::Comprobar_Actual() const
{
    if (Es_EOF()) throw Error_Ejecucion(3021);
}

void Tabla_Excel::MoveFirst()
{
    CancelUpdate();
    actual = cabecera + 1;
    Comprobar_Actual();
}

void Tabla_Excel::MoveNext()
{
    CancelUpdate();
    Comprobar_Actual();
    ++actual;
}

void Tabla_Excel::Comprobar_Campo(int campo) const
{
    if (campo < 0 || campo >= columnas.size()) throw Error_Ejecucion(3265);
}

const Celda& Tabla_Excel::Valor(int campo) const
{
    Comprobar_Actual();
    Comprobar_Campo(campo);
    return hoja.Leer(actual, primera_columna + campo);
}

void Tabla_Excel::Edit()
{
    Comprobar_Actual();
    escrito.clear();
    abierta = actual;
}

void Tabla_Excel::AddNew()
{
    escrito.clear();
    abierta = ultima + 1;
}

void Tabla_Excel::Poner_Valor(int campo, Celda valor)
{
    Comprobar_Campo(campo);
    if (!abierta) throw Error_Ejecucion(3020);
    if (!std::isfinite(valor.numero)) throw Error_Ejecucion(5);
    escrito[campo] = std::move(valor);
}

void Tabla_Excel::Poner(int campo, const QString& texto)
{
    Poner_Valor(campo, Celda::De(texto));
}

void Tabla_Excel::Poner(int campo, double numero)
{
    Poner_Valor(campo, Celda::De(numero));
}

void Tabla_Excel::Poner(int campo, const Celda& numero)
{
    Poner_Valor(campo, numero);
}

void Tabla_Excel::Update()
{
    if (!abierta) throw Error_Ejecucion(3020);
    const int fila = *abierta;
    const bool nueva = fila > ultima;
    // A record without a field set is a record all the same.
    if (nueva && escrito.empty()) hoja.Poner(fila, primera_columna, Celda());
    for (const auto& [campo, valor] : escrito) {
        const int columna = primera_columna + campo;
        Celda celda = nueva ? Aspecto(campo) : hoja.Leer(fila, columna);
        celda.tipo = valor.tipo;
        celda.texto = valor.texto;
        celda.numero = valor.numero;
        if (valor.decimales >= 0) celda.decimales = valor.decimales;
        hoja.Poner(fila, columna, celda);
    }
    // Behind the last record there is none to come to, also when one has been added.
    const bool en_el_final = Es_EOF();
    if (nueva) ultima = fila;
    if (en_el_final) actual = ultima + 1;
    CancelUpdate();
}

void Tabla_Excel::Quitar_Columnas_Desde(int campo)
{
    if (campo >= columnas.size()) return;
    hoja.Quitar(
        {cabecera, primera_columna + campo, cabecera, primera_columna + int(columnas.size()) - 1});
    columnas.resize(campo);
}

void Tabla_Excel::Imprimir(int registros, int campos)
{
    hoja.Poner_Area_Impresion(
        {cabecera + 1, primera_columna, cabecera + registros, primera_columna + campos - 1});
}

void Tabla_Excel::CancelUpdate()
{
    abierta.reset();
    escrito.clear();
}
