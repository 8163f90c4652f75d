#include "session/ui/frmDescargas.h"

#include "core/Ayuda.h"
#include "core/Estado_Global.h"
#include "core/Familia.h"
#include "core/ModEstTotal.h"
#include "core/Sucesos.h"
#include "core/ui/Dialogos.h"
#include "core/ui/Modelo_Conjunto.h"
#include "core/ui/Piezas.h"
#include "session/ui/FrmDatos.h"

#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QMenu>
#include <QPushButton>
#include <QTableView>
#include <QVBoxLayout>

Puertas_Descargas& Puertas_De_Descargas()
{
    return Estado_Global::Unico<Puertas_Descargas>();
}

frmDescargas::frmDescargas()
    : Ventana(QStringLiteral("frmDescargas")), Data1(new Modelo_Conjunto(this)),
      DBGrid1(new QTableView)
{
    setWindowTitle(QStringLiteral("Descargas"));
    Data1->setObjectName(QStringLiteral("Data1"));
    DBGrid1->setObjectName(QStringLiteral("DBGrid1"));
    QList<Columna_Rejilla> columnas;
    for (const Columna_Sesion& c : Columnas_Sesion())
        columnas.append(
            {c.titulo, c.campo, [c](const QString& valor) { return Texto_Celda(c, valor); }});
    Data1->Poner_Columnas(columnas);
    Atar_Rejilla(DBGrid1, Data1);
    LblAviso = Piezas::Rotulo(QString(), QStringLiteral("LblAviso"));
    LblAviso->setWordWrap(true);
    LblAviso->hide();
    botonera = Hacer_Botones();
    auto* const columna = new QVBoxLayout;
    columna->addWidget(DBGrid1, 1);
    columna->addWidget(LblAviso);
    auto* const caja = new QHBoxLayout(this);
    caja->addLayout(columna, 1);
    caja->addWidget(botonera);
    DBGrid1->setContextMenuPolicy(Qt::CustomContextMenu);
    connect(DBGrid1, &QTableView::customContextMenuRequested, this, &frmDescargas::Menu_De_Rejilla);
    resize(880, 420);
    Recordar_Posicion("DESCARGAS", 1);
    connect(DBGrid1, &QTableView::doubleClicked, this, &frmDescargas::BtnVerdatos_Click);
    connect(&Sucesos::Unico(), &Sucesos::sesiones_cambiadas, this, &frmDescargas::Refrescar);
    Data1->Abrir(Base::Abrir(Fichero_MDB), SQL_Sesiones(Clave_Estacion));
    const int anchos[] = {70, 84, 70, 150, 150, 90, 76};
    for (int i = 0; i < int(std::size(anchos)); ++i)
        DBGrid1->setColumnWidth(i, anchos[i]);
    DBGrid1->horizontalHeader()->setStretchLastSection(true);
}

QWidget* frmDescargas::Hacer_Botones()
{
    struct Descripcion {
        const char16_t *nombre, *texto, *consejo;
        std::function<void()> accion;
    };
    const Descripcion botones[] = {
        {u"BtnVerdatos", u"&Ver Datos", u"Muestra los datos obtenidos en la descarga",
         [this] { BtnVerdatos_Click(); }},
        {u"BtnNuevoformato", u"Ex Formato &Nuevo",
         u"Exporta los datos seleccionados usando un formato nuevo",
         [this] { Puertas_De_Descargas().Formato_Nuevo(Elegida()); }},
        {u"BtnFormatoExistente", u"Ex Formato &Existente",
         u"Exporta los datos seleccionados eligiendo un formato existente",
         [this] { Exporta_o_Imprime_Formato_Existente("E"); }},
        {u"BtnPrn", u"&Imprimir Fichero", u"Imprime la sesión seleccionada",
         [this] { Exporta_o_Imprime_Formato_Existente("I"); }},
        {u"BtnPlano", u"Ver &plano", u"Dibuja los puntos de la sesión seleccionada",
         [this] { Con_Sesion(Puertas_De_Descargas().Ver_Plano); }},
        {u"BtnExpBru", u"Guardar Como...", u"Guardar datos del fichero seleccionado",
         [this] { Con_Sesion(Puertas_De_Descargas().Guardar_Bruto); }},
        {u"BtnImpBrud1", u"Importar de Disco", u"Importar Fichero en Bruto",
         [] { Puertas_De_Descargas().Importar_Bruto(); }},
        {u"BtnEliminar", u"&Borrar Fichero", u"Elimina la Sesión Seleccionada",
         [this] { BtnEliminar_Click(); }},
        {u"BtnCan", u"&Cerrar", u"Oculta el formulario", [this] { Descargar(); }},
        {u"btnAyuda", u"&Ayuda", u"", [] { Mostrar_Ayuda_Web("descarg"); }},
    };
    auto* const lado = new QWidget;
    auto* const caja = new QVBoxLayout(lado);
    caja->setContentsMargins(0, 0, 0, 0);
    for (const Descripcion& b : botones) {
        if (b.nombre == QStringView(u"BtnCan")) caja->addStretch();
        QPushButton* const boton =
            Piezas::Boton(QString::fromUtf16(b.nombre), QString::fromUtf16(b.texto),
                          QString::fromUtf16(b.consejo));
        caja->addWidget(boton);
        connect(boton, &QPushButton::clicked, this, b.accion);
    }
    Poner_Botones(lado->findChild<QPushButton*>("BtnVerdatos"),
                  lado->findChild<QPushButton*>("BtnCan"));
    return lado;
}

void frmDescargas::Refrescar()
{
    Data1->Refresh();
}

std::optional<Sesion_Elegida> frmDescargas::Elegida() const
{
    return Data1->Vacio() ? std::nullopt : Sesion_De_Fila(Data1->Conjunto());
}

void frmDescargas::BtnVerdatos_Click()
{
    const auto sesion = Elegida();
    if (const auto vista = Ver_Datos(*Base_Datos, sesion))
        Dialogos::Unico<FrmDatos>().Ver(*sesion, *vista);
}

void frmDescargas::Exporta_o_Imprime_Formato_Existente(const QString& accion)
{
    Puertas_De_Descargas().Formato_Existente(Elegida(), accion);
}

void frmDescargas::Con_Sesion(const Puerta& puerta)
{
    if (const auto sesion = Elegida())
        puerta(*sesion);
    else
        Interfaz_Actual().Pitar();
}

void frmDescargas::Poner_Aviso(const QString& texto)
{
    LblAviso->setText(texto);
    LblAviso->setVisible(!texto.isEmpty());
}

// What the buttons do, and the plain raw dialogs.
void frmDescargas::Menu_De_Rejilla(const QPoint& lugar)
{
    const Puertas_Descargas& puertas = Puertas_De_Descargas();
    auto* const menu = new QMenu(this);
    menu->setObjectName("Menu");
    menu->setAttribute(Qt::WA_DeleteOnClose);
    const auto hijos = botonera->findChildren<QPushButton*>();
    for (QPushButton* const boton : hijos) {
        QAction* const entrada = menu->addAction(boton->text());
        entrada->setObjectName(QStringLiteral("Mnu") + boton->objectName());
        connect(entrada, &QAction::triggered, boton, &QPushButton::click);
    }
    menu->addSeparator();
    const std::tuple<const char*, const char*, Puerta> brutos[] = {
        {"MnuExpBruto", "Exportar Fichero en &Bruto...", puertas.Exportar_En_Bruto},
        {"MnuExpBrut", "Exportar Fichero a &Disco...", puertas.Exportar_A_Disco}};
    for (const auto& [nombre, texto, puerta] : brutos) {
        QAction* const entrada = menu->addAction(texto);
        entrada->setObjectName(nombre);
        connect(entrada, &QAction::triggered, this, [this, puerta] { Con_Sesion(puerta); });
    }
    const auto sesion = Elegida();
    if (sesion && Familia_De(sesion->maquina).serie == Serie::A) {
        QAction* const generales = menu->addAction("Incluir los registros generales");
        generales->setObjectName("MnuGenerales");
        generales->setCheckable(true);
        generales->setChecked(puertas.Incluir_Generales());
        connect(generales, &QAction::triggered, this, puertas.Poner_Incluir_Generales);
    }
    menu->popup(DBGrid1->viewport()->mapToGlobal(lugar));
}

void frmDescargas::BtnEliminar_Click()
{
    Borrar_Sesion(Elegida());
}
