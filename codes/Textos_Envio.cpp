#include "codes/Textos_Envio.h"

#include "codes/Codigos.h"
#include "core/ModEstTotal.h"

QString Texto_Libreria(const QString& codigos)
{
    const QStringList lista = codigos.split(QChar(SEP_LISTA));
    if (lista.size() < 2) return {};
    QString texto;
    for (int numero = 1; numero <= MAX_CODIGOS; ++numero) {
        const QString codigo = lista.value(numero);
        if (const QString malo = Caracter_No_Aceptado(codigo); !malo.isEmpty()) {
            Interfaz_Actual().Mensaje("El código nº" + QString::number(numero) + " (" + codigo +
                                          ") contiene el carácter '" + malo +
                                          "' el cual no es aceptado por el aparato",
                                      Icono::Critico, "Atención");
            return {};
        }
        if (codigo.size() > LARGO_CODIGO)
            throw Error_Ejecucion(5,
                                  QStringLiteral("El código nº%1 (%2) tiene más de %3 caracteres")
                                      .arg(QString::number(numero), codigo)
                                      .arg(LARGO_CODIGO));
        texto +=
            "_:" + Rellenar_Ceros(QString::number(numero), 3) + codigo.leftJustified(LARGO_CODIGO);
    }
    return texto;
}

QString Codigos_KRT800(const QString& libreria)
{
    const Serie_Librerias& serie = Librerias_De(Serie::B);
    QString texto;
    const Lista_De_Codigos codigos = Leer_Codigos(*Base_Datos, serie, libreria);
    for (const Codigo_Libreria& c : codigos)
        texto += serie.linea(0, c) + "\r\n";
    return texto;
}
