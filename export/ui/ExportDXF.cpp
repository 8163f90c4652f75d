#include "export/ui/ExportDXF.h"

#include "core/ui/Piezas.h"

#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

ExportDXF::ExportDXF()
    : Ventana(QStringLiteral("ExportDXF")), TxEntrada(Piezas::Caja("TxEntrada")),
      TxSalida(Piezas::Caja("TxSalida"))
{
    setWindowTitle(QStringLiteral("Exportación de Ficheros de DXF"));
    QPushButton* const BtnElegir =
        Piezas::Boton_Dibujo("BtnElegir", "carpeta.png", "...", "Cargar Fichero ...");
    QPushButton* const BtnSalida =
        Piezas::Boton_Dibujo("BtnSalida", "carpeta.png", "...", "Guardar como ...");
    BtnElegir->setAccessibleName("Cargar Fichero ...");
    BtnSalida->setAccessibleName("Guardar como ...");
    QPushButton* const BtnExportar = Piezas::Boton("BtnExportar", "&Exportar");
    QPushButton* const BtnSalir = Piezas::Boton("BtnSalir", "&Salir");
    auto* const caja = new QGridLayout(this);
    caja->addWidget(Piezas::Rotulo("Fichero de Entrada :"), 0, 0);
    caja->addWidget(TxEntrada, 0, 1);
    caja->addWidget(BtnElegir, 0, 2);
    caja->addWidget(Piezas::Rotulo("Fichero de Salida :"), 1, 0);
    caja->addWidget(TxSalida, 1, 1);
    caja->addWidget(BtnSalida, 1, 2);
    caja->addLayout(Piezas::Fila_De_Botones({BtnExportar, BtnSalir}), 2, 0, 1, 3);
    for (QLineEdit* const texto : {TxEntrada, TxSalida})
        texto->setReadOnly(true);
    setMinimumWidth(520);
    Poner_Botones(BtnExportar, BtnSalir);
    connect(BtnElegir, &QPushButton::clicked, this, [this] {
        modelo.Elegir_Entrada();
        Mostrar_Modelo();
    });
    connect(BtnSalida, &QPushButton::clicked, this, [this] {
        modelo.Elegir_Salida();
        Mostrar_Modelo();
    });
    connect(BtnExportar, &QPushButton::clicked, this, [this] { modelo.Exportar(); });
    connect(BtnSalir, &QPushButton::clicked, this, &Ventana::Descargar);
}

void ExportDXF::Mostrar_Modelo()
{
    TxEntrada->setText(modelo.entrada);
    TxSalida->setText(modelo.salida);
}
