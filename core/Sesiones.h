#pragma once

#include <QString>

class Base;

/// Inserts a session with the next number, the present date and the model in force.
/// @return its number as text; empty on an error, 32767 sessions being the limit
QString Nueva_Sesion(const QString& nombre, int ope);
/// The same for a transfer that keeps the family and model it began with, whatever is in force now.
QString Nueva_Sesion(const QString& nombre, int ope, const QString& maquina, const QString& maqdes);
/// Highest session number as text; empty when there is none.
QString Ultima_Sesion();
/// Number that the next session would get. @throws Error_Ejecucion 6 above 32767
int Siguiente_ID();
/// Notes how many points a session has; a session that isn't there is left alone.
void Poner_NPuntos(Base& base, qint64 id, qint64 puntos);
/// Deletes a session's row and then its lines, one transaction.
void Eliminar_Sesion(qint64 id);

/// Compacts the database and opens it again, by way of esttotal.pak, keeping esttotal.bak. Traps
/// every failure without a message (it goes to the run log) and then opens the old file again.
/// @return true when the file was replaced
bool Compactar_BD();
