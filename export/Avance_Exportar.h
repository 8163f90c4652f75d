#pragma once

#include <QString>

/// The progress bar and label of the dialog (`Pb1`, `LblMsg`); the engine doesn't know who listens.
class Avance_Exportar {
public:
    Avance_Exportar() = default;
    Avance_Exportar(const Avance_Exportar&) = delete;
    Avance_Exportar& operator=(const Avance_Exportar&) = delete;
    virtual ~Avance_Exportar();
    virtual void Etiqueta(const QString&) {}
    virtual void Maximo(qint64) {}
    /// Cheap to call often.
    virtual void Valor(qint64) {}
};

/// Lines or rows between two looks at the interface.
inline constexpr qint64 PASOS_POR_REPINTADO = 1024;

/// Moves the bar now and then over lines or rows, and lets the interface repaint.
class Marcador {
public:
    /// @param total  lines or rows to come
    Marcador(Avance_Exportar& avance_, qint64 total) : avance(avance_) { avance.Maximo(total); }
    /// One more is done.
    void Paso()
    {
        if (++hechos % PASOS_POR_REPINTADO == 0) Mostrar();
    }
    /// Shows the last of them.
    void Terminar() { avance.Valor(hechos); }

private:
    void Mostrar();

    Avance_Exportar& avance;
    qint64 hechos = 0;
};
