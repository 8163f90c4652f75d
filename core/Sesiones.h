#pragma once

#include <QString>

class Base;

/// Inserts a session with the next number, the present date and the model in force.
/// One transaction: programs that store at once on one installation get numbers of their own.
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

/// How a compaction ended.
struct Resultado_Compactacion {
    bool hecha = false; ///< the file was replaced
    int numero = 0;     ///< of the failure; 0 when all went well
    QString descripcion{};

    /// The database is damaged: what it says that it holds can't be relied upon.
    bool Danada() const { return numero == 3343; }
    explicit operator bool() const { return hecha; }
};

/// Compacts the database and opens it again, by way of esttotal.pak, keeping the copies of
/// core/Copias. Traps every failure without a message (it goes to the run log and to the result)
/// and then opens the old file again. A copy that can't be written stops nothing.
Resultado_Compactacion Compactar_BD();
