#pragma once

#include "core/Basico.h"
#include "core/Error_Ejecucion.h"
#include "core/Interfaz.h"
#include "core/jet/Base.h"
#include "core/Trozos.h"

#include <memory>
#include <QString>
#include <QStringList>

// The chief header: the global state, filled at start-up and read by every dialog, and the common
// routines. Nothing else of the program is global.

/// Install directory, no trailing separator.
extern QString Ruta_Aplicacion;
/// `Ruta_Aplicacion`/ddmmyy_hhmm.LOG, computed at each start and read by nothing: logs are named
/// elsewhere.
extern QString Fichero_Log_Inicio;
/// `Ruta_Aplicacion`/MDB, and EstTotal.mdb in it.
extern QString Ruta_MDB;
extern QString Fichero_MDB;
/// The help file that the platform's help would open.
extern QString Fichero_Ayuda;
/// A handle that says so when it is used while there is no database (91), instead of going astray.
class Base_Global : public std::shared_ptr<Base> {
public:
    using std::shared_ptr<Base>::shared_ptr;
    using std::shared_ptr<Base>::operator=;
    Base* operator->() const
    {
        if (!get()) throw Error_Ejecucion(91);
        return get();
    }
    Base& operator*() const { return *operator->(); }
};

/// The one connection that lives for the whole run; null before start-up and after a compaction
/// that could not open the database again.
extern Base_Global Base_Datos;

/// Family key ("KRT300", "KRT800", "NV400", "PX7"): the switch of the whole program.
extern QString Clave_Estacion;
/// Model's display name.
extern QString Nombre_Estacion;
/// The model is fixed: no model dialog at start-up.
extern bool Modelo_Fijo;

/// Serial settings as they stand in the ini.
extern QString Puerto, Velocidad, Bits_Datos, Paridad, Bits_Parada;
/// Read from the ini, never used.
extern QString Hard;
/// Comma list of the speeds that the model allows.
extern QString Vel_Puerto;
/// Coordinate format of the model; loaded, read by nothing.
extern QString Formato_Coord;

extern bool Ayuda_Visible, Ayuda_Recuerde, Offset_Cargas, Offset_Exportar, Mostrar_Cabeceras;

/// Coordinate offsets in force; "0" means none.
extern QString Desp_X, Desp_Y, Desp_Z;

/// The global list of 31 record identifiers (`datosexport`): indexes 0 to 30, unused ones empty.
extern QStringList datosexport;
inline constexpr int MAX_IDS = 31;

/// Path of a file below the install directory; `relativa` with "/" or "\" as separators.
QString En_Instalacion(const QString& relativa);

/// @return true if the file can be sized and has a length above 0: an empty file counts as absent
bool FileExist(const QString& fichero);

/// Empties `datosexport`.
void Limpiar_IDs();
/// @return true if `id` stands in `datosexport`
bool Existe_ID(const QString& id);

/// Rows of a query for a combo and its tag.
struct Lista_Combo {
    QStringList textos;
    QString tag; ///< values of the tag column joined with code 6, no leading separator
};
/// Reads a query into texts (column `campo_texto`) and tag (column `campo_tag`).
Lista_Combo Llenar_Combo(const QString& sql, const QString& campo_texto, const QString& campo_tag);

/// Description of an operation found by its number alone: the row of the current family if there is
/// one, else the first; empty when there is none.
QString Descripcion_Operacion(int ope);

/// Port number of a port text: its last character alone, so that "COM12" is 2 and "COM10" is 0.
int Numero_Puerto(const QString& puerto);
