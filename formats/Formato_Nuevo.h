#pragma once

#include "formats/Modelo_Formato.h"

/// What `FrmNuevoformato` holds: a new format, made for a session and exported at once, or made
/// from the maintenance. The dialog hands `modificable` straight into it too.
class Formato_Nuevo : public Modelo_Formato {
public:
    /// @param sesion  the session that it is made for; none from the maintenance
    Formato_Nuevo(const QString& maquina, const std::optional<Sesion_Elegida>& sesion = {});

    QString nombre;          ///< text of `Txt`, whose entries are the family's formats
    int indice_nombre = -1;  ///< its entry; -1: the text was typed, the format is a new one
    QStringList tipos;       ///< `CbTipo`
    QString tag_tipos;       ///< the operations that go with its entries, joined with code 6
    int tipo = -1;           ///< its entry
    bool modificable = true; ///< `Check2`
    QString guardado;        ///< name of the format that was stored; empty until then

    /// Fills the kinds and the lists.
    void Crear();
    /// The user picks a kind: the lists are filled anew.
    void Elegir_Tipo(int entrada);
    /// The user types a name, or picks one of the list.
    void Escribir_Nombre(const QString& texto);
    void Elegir_Nombre(int entrada);
    /// Fills the lists for the kind in force.
    void Actualizar_Datos();

    /// `BtnAceptar`: checks, stores, and for a session goes on to the export.
    bool Aceptar(const std::function<void()>& ocultar) override;

protected:
    const QString& Maquina() const { return maquina; }
    /// Fills the lists for the kind in force.
    virtual void Llenar_Listas();
    /// @return false for a format without fields, which isn't stored
    virtual bool Hay_Campos() const { return !listas.elegidos.isEmpty(); }
    /// Stores the format. @throws Error_Ejecucion 3022 for a new one that exists
    virtual void Almacenar(const Formato& formato, bool nuevo);

private:
    int Operacion() const;
    bool Guardar();

    QString maquina;
    std::optional<Sesion_Elegida> sesion;
};
