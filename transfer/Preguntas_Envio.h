#pragma once

#include <optional>
#include <QString>

/// What the uploads of both series ask for, in the same words.

/// The file to send; the dialog asks until a name comes.
/// @return nothing only when the run is being ended
std::optional<QString> Pedir_Fichero_Envio(const QString& titulo, const QString& filtro,
                                           const QString& extension = {});

/// The separator of the fields, then, when the settings have it so, the offsets; those of an earlier
/// export or upload are gone. @return nothing when either was cancelled
std::optional<QString> Pedir_Separador_Y_Desplazamientos();
