#pragma once

#include <optional>
#include <QDateTime>
#include <QList>
#include <QString>

/// Backups of the database and the way back to one: esttotal.bak of each compaction, and one of
/// each of the last seven days on which something was stored, in the folder `copias` beside it.
namespace Copias {

struct Copia {
    QString fichero;
    QDateTime momento; ///< when it was written
    qint64 bytes = 0;
    qint64 sesiones = 0;
    bool sana = false;
};

/// Keeps the compacted database `compactada` as esttotal.bak and as the copy of the day. The day's
/// copy is not overwritten by one of fewer sessions. Never fails: what can't be kept goes to the
/// run log.
void Guardar(const QString& compactada);

/// All that there are, the newest first, examined page by page.
QList<Copia> Lista();
/// The newest sound one.
std::optional<Copia> Ultima();

/// Puts a copy in the place of the database, which is kept aside, and opens it into `Base_Datos`.
/// @return where the replaced database lies now
/// @throws Error_Ejecucion 3343 when the copy is damaged itself, 3045 when another program uses the
/// database, 53 when the copy isn't there, 61 on a full disk: the database is then as it was
QString Recuperar(const QString& copia);

/// One line about a copy, for boxes and lists: "21/11/2026 10:32, 14 sesiones".
QString Texto(const Copia& copia);

/// Asks, puts the copy back and says where the replaced database lies; a failure gives the error
/// report. @return true when it was put back
bool Recuperar_Preguntando(const Copia& copia);

/// Says in one box that the database is damaged and which copy there is, until another database
/// has been put in its place: later calls say nothing.
/// @param ademas  a sentence that goes with it ("Lo recibido se conserva"), or empty
void Avisar_Base_Danada(const QString& ademas = {});
/// For a database that can't be opened: asks whether the last copy is to be put back, and does it.
/// @return false when there is no copy or the user doesn't want it
bool Ofrecer();

} // namespace Copias

/// Where the database lies, and on what kind of drive when that is another machine's.
QString Lugar_De_La_Base();

/// Looks through the open database for damage, a table at a time, so that it can be done between
/// one event of the user's and the next. What it finds is told by `Copias::Avisar_Base_Danada`.
class Revision_Base {
public:
    /// Looks at the next table. @return false when there is nothing left to look at
    bool Paso();

private:
    qsizetype siguiente = 0;
};
