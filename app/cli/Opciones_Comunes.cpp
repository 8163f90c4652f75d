#include "app/cli/Opciones_Comunes.h"

#include "core/ModEstTotal.h"
#include "session/Desplazamiento.h"
#include "session/Separadores.h"

QString Enumerar(QStringList palabras)
{
    const QString ultima = palabras.takeLast();
    return palabras.isEmpty() ? ultima : palabras.join(", ") + " o " + ultima;
}

QStringList Palabras_Separador()
{
    QStringList palabras;
    for (const Fila_Separador& fila : Separadores())
        palabras << fila.palabra;
    return palabras;
}

int Leer_Separador(const Argumentos& a)
{
    const QString palabra = a.Opcion("separador", Separadores().front().palabra);
    const int indice = Indice_Separador(palabra);
    if (indice < 0)
        throw Error_Uso{"El separador es " + Enumerar(Palabras_Separador()) + ": " + palabra};
    return indice;
}

std::optional<QStringList> Leer_Desplazamiento(const Argumentos& a)
{
    if (!a.Hay("desplazamiento")) return std::nullopt;
    QStringList ejes = a.Opcion("desplazamiento").split(u',');
    if (ejes.size() != 3)
        throw Error_Uso{"El desplazamiento se escribe X,Y,Z: " + a.Opcion("desplazamiento")};
    for (const QString& eje : ejes)
        if (Teclear_Desplazamiento(eje) != eje)
            throw Error_Uso{"El desplazamiento \"" + eje + "\" no es un número con punto decimal"};
    return ejes;
}

void Poner_Velocidad(const Argumentos& a)
{
    const QStringList velocidades = Vel_Puerto.split(u',');
    if (a.Hay("velocidad"))
        Velocidad = a.Opcion("velocidad");
    else if (!velocidades.contains(Velocidad))
        Velocidad = velocidades.first();
    if (!velocidades.contains(Velocidad))
        throw Error_Uso{"El modelo " + Nombre_Estacion + " admite las velocidades " + Vel_Puerto};
}
