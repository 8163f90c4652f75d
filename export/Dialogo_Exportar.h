#pragma once

#include "export/Salidas.h"

/// The entries of `VersionExcel` that name a form of their own.
QStringList Versiones_De_Libro();

/// What `FrmExportar` holds: the choice of the kind of file and its name, and the start of the
/// export. The dialog shows the public members after each call and hands the user's choices back by
/// the routines below.
class Dialogo_Exportar {
public:
    /// Starts the dialog for a session and a format.
    explicit Dialogo_Exportar(const Trabajo_Exportar& trabajo);

    int opcion = 0;                ///< the chosen `OptFor`
    QList<bool> activa;            ///< which of them are enabled
    bool caracter_visible = false; ///< `Caracter` and `Label4`
    bool version_visible = false;  ///< `VersionExcel` and `Label3`
    QStringList caracteres;        ///< `Caracter`
    QString tag_caracteres;        ///< the separators, joined with code 6
    int caracter = -1;             ///< its entry
    QStringList versiones;         ///< `VersionExcel`
    int version = -1;              ///< its entry
    QString version_excel;         ///< `Version_Excel`: connect string
    bool numeros = false;          ///< `ChkNumeros`, shown with the versions; remembered
    QString fichero;               ///< `Text1`
    bool elegir_activo = false;    ///< `BtnElegir`

    /// The row of the chosen `OptFor`; without one, that of the database.
    const Salida_Exportar& Elegida() const;
    /// `OptFor` click.
    void Elegir_Opcion(int indice);
    /// `VersionExcel` click. "Excel 2000" keeps the connect string that was in force.
    void Elegir_Version(int indice);
    /// `ChkNumeros` click: the choice is kept for the next time.
    void Marcar_Numeros(bool si);
    /// `BtnElegir`: asks for the file until one is accepted or the user cancels.
    void Elegir_Fichero();
    /// Takes a name for the file, asking when one stands there. @return false when it was refused
    bool Proponer_Fichero(const QString& nombre);
    /// `BtnExportar`. @return true when the writer finished
    bool Exportar(Avance_Exportar& avance);

    const Trabajo_Exportar& Trabajo() const { return trabajo; }

private:
    void Reset();
    void Agregar_caracteres();
    void Agregar_versiones();
    Opciones_Exportar Opciones() const;

    Trabajo_Exportar trabajo;
};
