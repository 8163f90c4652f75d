#pragma once

#include <exception>
#include <QString>

/// A failure at run time: the classic number and its Spanish description. A routine that reports
/// failures traps it at its one exit and shows it through `Informe_Error`.
class Error_Ejecucion : public std::exception {
public:
    /// @param numero  one of the numbers that `Descripcion_Error` knows
    explicit Error_Ejecucion(int numero);
    /// @param detalle  replaces the general description, e.g. the reason the system gave
    Error_Ejecucion(int numero, const QString& detalle);
    /// @param detalle  what the failure is about (a file, a field, the system's reason): it stands
    ///                 behind the general description and ": "
    static Error_Ejecucion Con(int numero, const QString& detalle);

    const char* what() const noexcept override { return texto_what.constData(); }

    int numero;
    QString descripcion;

private:
    QByteArray texto_what;
};

/// @return the general Spanish text of error `numero`; never empty
QString Descripcion_Error(int numero);

/// @return every number that has a text of its own, in ascending order
QList<int> Numeros_Error();

/// Turns the exception under way into an `Error_Ejecucion`: to be called inside a `catch (...)`.
/// Lack of memory gives 7, any other foreign exception 51 with its text.
Error_Ejecucion Error_En_Curso();
