#include "codes/ui/frmCodigos800.h"

#include "codes/ui/Panel_Librerias.h"
#include "core/Ayuda.h"
#include "core/ModEstTotal.h"
#include "core/Sucesos.h"
#include "core/ui/Modelo_Conjunto.h"
#include "core/ui/Piezas.h"

#include <QGroupBox>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLineEdit>
#include <QPushButton>
#include <QTableView>

frmCodigos800::frmCodigos800()
    : Ventana(QStringLiteral("frmCodigos800")), datCodigos(new Modelo_Conjunto(this)),
      DBGrid1(new QTableView)
{
    setWindowTitle(QStringLiteral("Librerías de Códigos"));
    datCodigos->setObjectName(QStringLiteral("datCodigos"));
    DBGrid1->setObjectName(QStringLiteral("DBGrid1"));
    datCodigos->Poner_Columnas(
        {{"Código", "CODIGO"}, {"Entidad", "DESCRIPCION"}, {"Capa", "CAPA"}});
    Atar_Rejilla(DBGrid1, datCodigos);
    panel = new Panel_Librerias(modelo, [this] { Mostrar_Todo(); });
    Hacer();
    Recordar_Posicion("CODIGOS800", 1);
    modelo.Cargar();
    Mostrar_Todo();
    DBGrid1->setColumnWidth(0, 150);
    DBGrid1->setColumnWidth(1, 150);
    DBGrid1->horizontalHeader()->setStretchLastSection(true);
    connect(datCodigos, &Modelo_Conjunto::reposicion, this,
            [this](int fila) { modelo.fila = fila; });
    connect(&Sucesos::Unico(), &Sucesos::librerias_cambiadas, this, [this] {
        modelo.Actualizar();
        Mostrar_Todo();
    });
    resize(680, 430);
}

void frmCodigos800::Hacer()
{
    const auto refrescar = [this] { Mostrar_Todo(); };
    QLineEdit* const TxtBuscar = Caja_De_Busqueda(this, modelo, refrescar);
    QGroupBox* const codigos = Piezas::Grupo(" Códigos ");
    auto* const lista = new QVBoxLayout;
    lista->addWidget(TxtBuscar);
    lista->addWidget(DBGrid1, 1);
    auto* const dentro = new QHBoxLayout(codigos);
    dentro->addLayout(lista, 1);
    dentro->addLayout(
        Columna_De_Botones(this,
                           {{u"BtnADDCod", u"&Añadir", u"Añadir un código al final de la lista",
                             [this] { modelo.Nuevo_Codigo(); }},
                            {u"BtnEdiCod", u"&Editar", u"Editar el código seleccionado",
                             [this] { modelo.Editar_Codigo(); }},
                            {u"BTnEli", u"&Eliminar", u"Eliminar el código seleccionado",
                             [this] { modelo.Eliminar_Codigo(); }},
                            {u"BtnOrd", u"&Ordenar", u"Ordenar los códigos alfabéticamente",
                             [this] { modelo.Ordenar(); }}},
                           refrescar));
    QPushButton* const BtnSal = Piezas::Boton("BtnSal", "&Cerrar");
    QPushButton* const btnAyuda = Piezas::Boton("btnAyuda", "Ay&uda");
    auto* const caja = new QVBoxLayout(this);
    caja->addWidget(panel);
    caja->addWidget(codigos, 1);
    caja->addLayout(Piezas::Fila_De_Botones({BtnSal, btnAyuda}));
    Poner_Botones(nullptr, BtnSal);
    DBGrid1->installEventFilter(this);
    DBGrid1->setFocus();

    connect(BtnSal, &QPushButton::clicked, this, &Ventana::Descargar);
    connect(btnAyuda, &QPushButton::clicked, this, [] { Mostrar_Ayuda_Web("codigos"); });
    connect(DBGrid1, &QTableView::doubleClicked, this, [this] {
        modelo.Editar_Codigo();
        Mostrar_Todo();
    });
}

void frmCodigos800::Mostrar_Todo()
{
    QStringList claves;
    for (const Cabecera_Libreria& l : std::as_const(modelo.librerias))
        claves << l.codigo;
    panel->Mostrar(claves, claves.join(QChar(SEP_LISTA)));
    const int fila = modelo.fila;
    datCodigos->Abrir(Base::Abrir(Fichero_MDB), modelo.SQL_Codigos());
    if (fila >= 0) datCodigos->Ir_A(fila);
}

bool frmCodigos800::eventFilter(QObject* objeto, QEvent* evento)
{
    if (objeto == DBGrid1 && evento->type() == QEvent::KeyPress) {
        const int tecla = static_cast<QKeyEvent*>(evento)->key();
        const char* boton = nullptr;
        for (const auto& [cual, nombre] :
             {std::pair{Qt::Key_Insert, "BtnADDCod"}, std::pair{Qt::Key_Delete, "BTnEli"},
              std::pair{Qt::Key_F2, "BtnEdiCod"}, std::pair{Qt::Key_Return, "BtnEdiCod"},
              std::pair{Qt::Key_Enter, "BtnEdiCod"}})
            if (tecla == cual) boton = nombre;
        if (boton) {
            findChild<QPushButton*>(boton)->click();
            return true;
        }
    }
    return Ventana::eventFilter(objeto, evento);
}
