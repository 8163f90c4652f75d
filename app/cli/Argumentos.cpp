#include "app/cli/Argumentos.h"

Argumentos::Argumentos(const QStringList& palabras, const QStringList& con_valor,
                       const QStringList& sin_valor)
{
    for (qsizetype i = 0; i < palabras.size(); ++i) {
        const QString& p = palabras[i];
        if (p == u"--") {
            sueltos += palabras.mid(i + 1);
            return;
        }
        if (!p.startsWith(u"--")) {
            sueltos << p;
            continue;
        }
        const qsizetype igual = p.indexOf(u'=');
        const QString nombre = p.mid(2, igual < 0 ? -1 : igual - 2);
        if (opciones.contains(nombre)) throw Error_Uso{"La opción --" + nombre + " está repetida"};
        if (sin_valor.contains(nombre) && igual < 0) {
            opciones[nombre] = QString();
        } else if (!con_valor.contains(nombre)) {
            throw Error_Uso{"Opción desconocida: " + p};
        } else if (igual >= 0) {
            opciones[nombre] = p.mid(igual + 1);
        } else if (i + 1 < palabras.size()) {
            opciones[nombre] = palabras[++i];
        } else {
            throw Error_Uso{"Falta el valor de --" + nombre};
        }
    }
}

QStringList Argumentos::Sueltos(qsizetype minimo, qsizetype maximo) const
{
    if (sueltos.size() < minimo) throw Error_Uso{"Faltan argumentos"};
    if (sueltos.size() > maximo) throw Error_Uso{"Sobra el argumento " + sueltos[maximo]};
    return sueltos;
}

QString Argumentos::Opcion(const QString& nombre, const QString& defecto) const
{
    return opciones.value(nombre, defecto);
}

QString Argumentos::Obligada(const QString& nombre) const
{
    if (!Hay(nombre)) throw Error_Uso{"Falta la opción --" + nombre};
    return opciones[nombre];
}

int Argumentos::Numero(const QString& nombre) const
{
    return Numero_De(Obligada(nombre), "--" + nombre);
}

int Numero_De(const QString& palabra, const QString& que)
{
    bool bien = false;
    const int n = palabra.toInt(&bien);
    if (!bien) throw Error_Uso{"El valor de " + que + " no es un número: " + palabra};
    return n;
}
