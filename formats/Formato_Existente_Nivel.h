#pragma once

#include "formats/Formato_Existente.h"
#include "formats/Formatos_Nivel.h"

/// What `FrmExistFormNV400` holds: the choice of a level format for one session. The report reads
/// the format from the store, so that what the user changes in a half is stored there when he turns
/// to the other half or accepts.
class Formato_Existente_Nivel : public Formato_Existente {
public:
    Formato_Existente_Nivel(const Sesion_Elegida& sesion, const QString& destino);

    Dos_Mitades mitades;     ///< `CbEstructura`
    QString estilo;          ///< `LblEstilo`
    Opciones_Nivel casillas; ///< `ChkAnillo`, `ChkNivelacion`

    bool Ver() override;
    /// `CbEstructura` click.
    void Elegir_Mitad(Mitad_Nivel mitad);
    bool Aceptar(const std::function<void()>& ocultar) override;

protected:
    void Leer_Campos(const QString& nombre) override;
    Trabajo_Exportar Trabajo() const override;

private:
    void Guardar_Vista();
};

/// The way in which a session was measured, by the letters of its sights: "Espalda-Frente", …;
/// "Fichero Vacío" without any, "Otro" for an order without a name.
QString Estilo_De_Sesion(Base& bd, qint64 id);
