#include "session/Texto_Nivel.h"

#include "core/Trozos.h"

QString Texto_Campos(Base& bd, const QString& id, const QString& linea)
{
    QString texto;
    // The line's first token is its letter and unit.
    int n = 1;
    Recorrido campos =
        bd.Recorrer("SELECT DISTINCT campo, orden FROM CAMPOS WHERE id = '" +
                    Reemplazar(id, "'", "''") + "'  AND Maquina = 'NV400' ORDER BY orden");
    while (campos.Siguiente()) {
        ++n;
        if (const QString campo = campos.Texto(0); campo != u"Nulo")
            texto += campo + u':' + Trozo(n, linea, u',') + u' ';
    }
    return texto;
}
