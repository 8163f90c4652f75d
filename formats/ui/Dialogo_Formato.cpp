#include "formats/ui/Dialogo_Formato.h"

#include "core/Ayuda.h"
#include "core/ui/Piezas.h"
#include "formats/ui/Panel_Campos.h"

#include <QCheckBox>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

Dialogo_Formato::Dialogo_Formato(const QString& nombre, const QString& titulo, const QString& subir,
                                 const QString& bajar)
    : Ventana(nombre), TxtDes(Piezas::Caja("TxtDes", ANCHO_DESCRIPCION)),
      panel(new Panel_Campos(subir, bajar))
{
    setWindowTitle(titulo);
}

QFormLayout* Dialogo_Formato::Poner_Renglones(const QList<Renglon>& renglones, QWidget* marco)
{
    auto* const datos = new QFormLayout(marco);
    for (const Renglon& r : renglones)
        datos->addRow(r.rotulo, r.pieza);
    return datos;
}

QCheckBox* Dialogo_Formato::Hacer_Cabeceras()
{
    QCheckBox* const casilla = Piezas::Casilla("Check1", " Incluir Cabeceras");
    connect(casilla, &QCheckBox::toggled, this, [this](bool si) {
        if (en_uso) en_uso->cabeceras = si;
    });
    return casilla;
}

void Dialogo_Formato::Armar(const QList<Renglon>& renglones, const QList<QWidget*>& casillas,
                            const QString& ayuda)
{
    QPushButton* const BtnAceptar = Piezas::Boton("BtnAceptar", "&Aceptar");
    QPushButton* const BtnCancelar = Piezas::Boton("BtnCancelar", "&Cancelar");
    QPushButton* const btnAyuda = Piezas::Boton("btnAyuda", "&Ayuda");
    auto* const fila = new QHBoxLayout;
    for (QWidget* const casilla : casillas)
        fila->addWidget(casilla);
    fila->addStretch();
    auto* const caja = new QVBoxLayout(this);
    caja->addLayout(Poner_Renglones(renglones));
    caja->addWidget(panel, 1);
    caja->addLayout(fila);
    caja->addLayout(Piezas::Fila_De_Botones({BtnAceptar, BtnCancelar, btnAyuda}));
    Poner_Botones(BtnAceptar, BtnCancelar);

    connect(BtnAceptar, &QPushButton::clicked, this, &Dialogo_Formato::BtnAceptar_Click);
    connect(BtnCancelar, &QPushButton::clicked, this, &Ventana::Descargar);
    connect(btnAyuda, &QPushButton::clicked, this, [ayuda] { Mostrar_Ayuda_Web(ayuda); });
}

void Dialogo_Formato::Mostrar_Modelo(Modelo_Formato& de, QWidget& primera)
{
    en_uso = &de;
    const QPointer<Dialogo_Formato> viva(this);
    setWindowTitle(de.titulo);
    panel->Atar(&de.listas);
    Mostrar_Datos();
    primera.setFocus();
    Mostrar_Modal();
    // The dialog may be gone by now, or refilled with another model while it was up.
    if (viva && en_uso == &de) {
        panel->Atar(nullptr);
        en_uso = nullptr;
    }
}

void Dialogo_Formato::BtnAceptar_Click()
{
    if (!en_uso) return;
    if (en_uso->Aceptar([this] { Ocultar(); }))
        Descargar();
    else
        Al_Rechazar();
}
