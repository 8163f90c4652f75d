#pragma once

class Conexion;

/// Brings the tables of an older program's database to the form of `Esquema`: every row stays, in
/// its place. A copy is written beside the file first (esttotal_version0.bak); the change is one
/// transaction, so that a failure, or a kill, leaves the database as it was.
/// @throws Error_Ejecucion 3026 on a full disk, 3045 when another program holds it, 3343 when it is
/// damaged
void Migrar(Conexion& conexion);
