#include "session/ui/FrmDatos.h"

#include "core/Ayuda.h"
#include "core/ModEstTotal.h"
#include "core/ui/Dialogos.h"
#include "core/ui/Piezas.h"
#include "session/ModVDatos.h"
#include "session/ui/frmDescargas.h"
#include "session/ui/FrmEditar.h"
#include "session/ui/Modelo_Lista.h"
#include "session/ui/Rejilla.h"

#include <QAction>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QPushButton>
#include <QSplitter>
#include <QTableView>
#include <QTableWidget>
#include <QVBoxLayout>

FrmDatos::FrmDatos()
    : Ventana(QStringLiteral("FrmDatos")), Data1(new Modelo_Lista(this)), DBGrid1(new QTableView),
      MSF(Hacer_Rejilla("MSF"))
{
    Data1->setObjectName(QStringLiteral("Data1"));
    DBGrid1->setObjectName(QStringLiteral("DBGrid1"));
    Atar_Rejilla(DBGrid1, Data1);
    DBGrid1->setColumnWidth(0, 120);
    DBGrid1->setColumnWidth(1, 180);
    DBGrid1->horizontalHeader()->setStretchLastSection(true);
    auto* const mitades = new QSplitter(Qt::Vertical);
    mitades->addWidget(DBGrid1);
    mitades->addWidget(MSF);
    mitades->setStretchFactor(0, 3);
    mitades->setStretchFactor(1, 1);
    mitades->setChildrenCollapsible(false);
    QPushButton* const BtnOperaciones = Piezas::Boton("BtnOperaciones", "&Ver con formato");
    QPushButton* const BtnPlano =
        Piezas::Boton("BtnPlano", "Ver &plano", "Dibuja los puntos de la sesión");
    QPushButton* const BtnCan = Piezas::Boton("BtnCan", "&Cerrar");
    QPushButton* const btnAyuda = Piezas::Boton("btnAyuda", "&Ayuda");
    auto* const botones = new QHBoxLayout;
    botones->addWidget(BtnOperaciones);
    botones->addWidget(BtnPlano);
    botones->addStretch();
    botones->addWidget(BtnCan);
    botones->addWidget(btnAyuda);
    auto* const caja = new QVBoxLayout(this);
    caja->addWidget(mitades, 1);
    caja->addLayout(botones);
    setWindowFlag(Qt::WindowMaximizeButtonHint);
    resize(780, 560);
    Poner_Botones(BtnOperaciones, BtnCan);
    connect(Data1, &Modelo_Lista::reposicion, this, &FrmDatos::Data1_Reposition);
    connect(BtnOperaciones, &QPushButton::clicked, this, &FrmDatos::BtnOperaciones_Click);
    const auto ver_plano = [this] { Puertas_De_Descargas().Ver_Plano(sesion_vista); };
    auto* const accion = new QAction(QStringLiteral("Ver plano"), DBGrid1);
    DBGrid1->addAction(accion);
    DBGrid1->setContextMenuPolicy(Qt::ActionsContextMenu);
    connect(accion, &QAction::triggered, this, ver_plano);
    connect(BtnPlano, &QPushButton::clicked, this, ver_plano);
    connect(BtnCan, &QPushButton::clicked, this, &Ventana::Ocultar);
    connect(btnAyuda, &QPushButton::clicked, this, [] { Mostrar_Ayuda_Web("vdatos"); });
}

void FrmDatos::Ver(const Sesion_Elegida& sesion, const Vista_Datos& vista)
{
    sesion_vista = sesion;
    setWindowTitle(vista.titulo);
    DBGrid1->setColumnHidden(0, !vista.columna_punto);
    DBGrid1->setColumnHidden(1, !vista.columna_descr);
    visor = std::make_unique<Visor_Registros>(*Base_Datos, sesion.maquina, sesion.ope);
    Data1->Abrir(std::make_unique<Lista_Sesion>(Base::Abrir(Fichero_MDB), sesion));
    Mostrar_Modal();
}

void FrmDatos::Data1_Reposition()
{
    Poner_Lineas(*MSF, "Campo", "Valor",
                 Datos_Generales(*Base_Datos, sesion_vista, Data1->Actual().datosg));
}

void FrmDatos::BtnOperaciones_Click()
{
    if (Data1->Fila_Actual() < 0) {
        Interfaz_Actual().Pitar();
        return;
    }
    const Linea_De_Sesion linea = Data1->Actual();
    const auto vista = visor->Ver(linea.datos, linea.punto);
    if (vista)
        Dialogos::Unico<FrmEditar>().Ver(*vista, [this](int paso) {
            if (Mover(paso)) BtnOperaciones_Click();
        });
}

bool FrmDatos::Mover(int paso)
{
    if (Data1->Mover(paso)) return true;
    Avisar_Fin_De_Datos();
    return false;
}
