#pragma once

#include "core/Familia.h"
#include "session/Consultas_Sesion.h"

#include <map>
#include <memory>
#include <QStringList>

/// One record, decoded, as `FrmEditar` shows it.
struct Vista_Registro {
    QString punto;
    QStringList nombres, valores; ///< of one length; what the line doesn't hold is empty
    /// The buttons that walk to the next and the previous record are enabled: not for sessions that
    /// have no sequence of points.
    bool con_botones = true;
};

/// Decodes lines of one session for the viewers, without offsets: they read "0" afterwards. What a
/// kind of record needs is worked out once.
class Visor_Registros {
public:
    /// @param maquina, ope  those of the session
    Visor_Registros(Base& bd, const QString& maquina, int ope);
    ~Visor_Registros();
    Visor_Registros(const Visor_Registros&) = delete;
    Visor_Registros& operator=(const Visor_Registros&) = delete;

    /// @return nothing when the line is of a kind without listed fields: the viewer then stays
    ///         silent
    std::optional<Vista_Registro> Ver(const QString& datos, const QString& punto);
    /// The same in place, for who looks at many lines: names and values, which hold until the next
    /// call; null for such a kind.
    const Vista_Registro* Mirar(QStringView datos);

private:
    struct Clase;
    Clase& Pedir(QStringView id);

    Base& bd;
    QString maquina;
    const Familia& familia;
    int ope;
    quint64 version = 0; // of the rows that the kinds were made of
    std::map<QString, std::unique_ptr<Clase>, std::less<>> clases;
};

/// Decodes one line: the object above used once.
std::optional<Vista_Registro> Ver_Registro(const QString& maquina, int ope, const QString& descr,
                                           const QString& datos, const QString& punto);

/// Lines of a two-column grid; an empty value shows as "--".
QList<Linea_Rejilla> Llenar_Rejilla(const QStringList& nombres, const QStringList& valores);

/// Says that there is no line behind the last, or before the first.
void Avisar_Fin_De_Datos();
