#pragma once

#include "core/Dibujo_Numero.h"
#include "session/Desplazamiento.h"

#include <optional>
#include <QString>
#include <vector>

/// How a field's text becomes its value, worked out once from its row of `Campos` and then used for
/// every line: the special orders, the digits, the picture. The decoder's routines on one text are
/// these plans used once.

struct Fila_Campo;

/// `Campos.PosDigit` and `Campos.Caracter`: see `Aplicar_Digitos`.
class Plan_Digitos {
public:
    Plan_Digitos(const QString& posdigit, const QString& caracter);

    /// @return true for "*": the value is no number
    bool Es_Texto() const { return es_texto; }
    QString Aplicar(QStringView valor) const;
    /// @throws Error_Ejecucion 13 when what is to be split holds anything but digits
    void Exigir_Cifras(QStringView valor) const;

    const QString& Caracter() const { return caracter; }
    Anchos_Numero Anchos() const { return anchos; }

private:
    bool es_texto;
    Anchos_Numero anchos;
    QString caracter;
};

/// `Campos.Especial`: see `Aplicar_Especial`.
class Plan_Especial {
public:
    explicit Plan_Especial(QStringView lista);

    bool Vacio() const { return ordenes.empty(); }
    /// @throws Error_Ejecucion 13 when "CI" finds an integer part that is no number
    void Aplicar(QString& valor) const;

private:
    enum class Orden { Ceros_Decimales, Ceros_Enteros, Tras_Comilla };
    std::vector<Orden> ordenes;
};

/// All that a row of `Campos` asks for.
class Plan_Campo {
public:
    /// @param sumador  of a coordinate to which an offset is added
    Plan_Campo(const Fila_Campo& campo, std::optional<Sumador> sumador);

    /// Value of a field in fixed columns, into `valor`.
    /// @param linea  without blanks around; @param posicion  first column, from 1
    /// @throws Error_Ejecucion 13, 6 when it can't be converted: `valor` then holds anything
    void De_Columnas(QStringView linea, int posicion, QString& valor) const;

    /// Value of a KRT800 token, into `valor`, which stays when the instrument sent no data ("*").
    /// @throws as above
    void De_Token(QStringView token, QString& valor) const;

private:
    QStringView Cortar(QStringView linea, int posicion) const;
    void Convertir(QStringView corte, QString& valor) const;
    bool Copiar_Cifras(QStringView corte, QString& valor) const;
    void Sumar_Coordenada(QStringView corte, QString& valor) const;
    QString Con_Dibujo(const QString& valor) const;

    int ancho; // in characters
    bool tras_comilla;
    bool coordenada;
    std::optional<Sumador> sumador;
    Plan_Digitos digitos;
    Plan_Especial especial;
    std::optional<Dibujo_Numero> dibujo;
    // Digits of the integer part at least, when the picture shows the very digits of the text: they
    // are then copied and never become a binary number.
    std::optional<int> cifras_copiadas;
};
