#pragma once

#include <QList>
#include <QString>

/// Private profile files (EstTotal.ini, Posicion.ini, Puertos.ini): sections, keys, Windows-1252,
/// CR LF. Section and key are compared without case, blanks around a key and its value are dropped
/// on reading, comments and unknown lines are kept, and a write replaces the file whole.
namespace Perfil {

/// @param maximo  longest value handed back, in characters (the caller's buffer)
QString Leer(const QString& fichero, const QString& seccion, const QString& clave,
             const QString& defecto, int maximo = 255);

/// Writes or replaces one key; a null `valor` removes it.
/// @throws Error_Ejecucion 70, 75, 76 or 61 when the file can't be written; it then stays as it was
void Escribir(const QString& fichero, const QString& seccion, const QString& clave,
              const QString& valor);

/// One key to be written; a null `valor` removes it.
struct Entrada {
    QString seccion, clave, valor;
};
/// Writes or replaces several keys in their order, with one write of the file: all of them stand in
/// it afterwards, or none. @throws Error_Ejecucion as `Escribir`
void Escribir_Todas(const QString& fichero, const QList<Entrada>& entradas);

} // namespace Perfil
