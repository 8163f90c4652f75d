#include "core/Sucesos.h"
#include "core/ui/Dialogos.h"
#include "formats/Formato_Existente.h"
#include "formats/Formato_Nuevo.h"
#include "formats/ui/FrmExistformato.h"
#include "formats/ui/Frmformatos.h"
#include "formats/ui/FrmNuevoformato.h"
#include "session/Peticiones_Sesion.h"
#include "tests/apoyo/Base_De_Prueba.h"
#include "tests/apoyo/Hijo.h"
#include "tests/apoyo/Interfaz_Guion.h"
#include "tests/apoyo/Prueba.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>

// The three format dialogs, by the names of their controls.
class TestDialogos_Formatos : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void init();
    void cleanup();
    void existente_ensena_el_formato_elegido();
    void existente_bloqueado_no_deja_cambiar();
    void existente_sin_elegir_pita();
    void existente_acepta_la_lista_vaciada();
    void existente_cancelado_no_toca_los_campos();
    void varios_pasan_el_ultimo_delante();
    void uno_deja_la_seleccion_en_su_sitio();
    void subir_el_primero_no_hace_nada();
    void doble_pulsacion_pasa_un_campo();
    void nuevo_sin_nombre_o_sin_campos_avisa();
    void nuevo_se_guarda_desde_el_teclado();
    void nuevo_tecleado_con_nombre_que_hay_se_rechaza();
    void nuevo_elegido_de_la_lista_se_cambia();
    void nuevo_con_sesion_sigue_a_exportar();
    void mantenimiento_guarda_lo_cambiado();
    void mantenimiento_recuerda_el_ultimo();
    void mantenimiento_borra_tambien_el_bloqueado();
    void mantenimiento_sigue_al_modelo();
    void los_textos_son_los_suyos();

private:
    void Formato(const QString& nombre, bool modificable, const QStringList& campos);
    static void Marcar(QListWidget& lista, const QList<int>& filas);
    static QStringList Textos(const QListWidget& lista);

    std::unique_ptr<Base_De_Prueba> base;
    std::unique_ptr<Interfaz_Guion> interfaz;
    Peticiones_Formatos antes;
    QList<Trabajo_Exportar> exportados;
    const Sesion_Elegida sesion{.id = 1, .maquina = "KRT300", .ope = 0, .wope = "Datos brutos"};
};

void TestDialogos_Formatos::init()
{
    base = std::make_unique<Base_De_Prueba>();
    interfaz = std::make_unique<Interfaz_Guion>();
    antes = Peticiones_De_Formatos();
    exportados.clear();
    Peticiones_De_Formatos().Abrir_Exportar = [this](const Trabajo_Exportar& t) {
        exportados << t;
    };
    Clave_Estacion = "KRT300";
    Offset_Exportar = false;
    base->Fila("OPE", {{"OPE", 0}, {"DESOPE", "Datos brutos"}});
    base->Fila("KRT2",
               {{"Nombre", "KRT300"}, {"OPE", 0}, {"TipOpe", "D"}, {"DESOPE", "Datos brutos"}});
    base->Fila("Identificadores",
               {{"Nombre", "KRT300"}, {"OPE", 0}, {"ID", "A"}, {"NomID", "Medida"}, {"tipo", "M"}});
    int orden = 0;
    for (const char* campo : {"Ángulo", "Distancia", "Mira", "Código"})
        base->Fila("Campos", {{"Maquina", "KRT300"},
                              {"ID", "A"},
                              {"Campo", QString(campo)},
                              {"Orden", ++orden},
                              {"Digitos", 4},
                              {"PosDigit", "*"},
                              {"Marcas", ""}});
    base->Fila("Sesiones", {{"ID", 1}, {"NFichero", "Obra"}, {"OPE", 0}, {"Maquina", "KRT300"}});
    base->Fila("Registros", {{"ID", 1}, {"Secuencia", 1}, {"Punto", "P1"}, {"Datos", "A123"}});
    Formato("Corto", true, {"Mira", "Ángulo"});
    Formato("Fijo", false, {"Mira"});
}

void TestDialogos_Formatos::cleanup()
{
    Limpiar_Ventanas();
    Peticiones_De_Formatos() = antes;
    interfaz.reset();
    base.reset();
}

void TestDialogos_Formatos::Formato(const QString& nombre, bool modificable,
                                    const QStringList& campos)
{
    base->Fila("Formatos1", {{"Nombre", nombre},
                             {"Maquina", "KRT300"},
                             {"descripcion", "De " + nombre},
                             {"cabeceras", "SI"},
                             {"Modificable", modificable ? "SI" : "NO"},
                             {"ope", 0},
                             {"Ids", "A "}});
    for (qsizetype i = 0; i < campos.size(); ++i)
        base->Fila("Formatos2",
                   {{"Nombre", nombre}, {"Maquina", "KRT300"}, {"sec", i}, {"Campo", campos[i]}});
}

void TestDialogos_Formatos::Marcar(QListWidget& lista, const QList<int>& filas)
{
    lista.clearSelection();
    for (const int f : filas)
        lista.item(f)->setSelected(true);
}

QStringList TestDialogos_Formatos::Textos(const QListWidget& lista)
{
    QStringList textos;
    for (int i = 0; i < lista.count(); ++i)
        textos << lista.item(i)->text();
    return textos;
}

static void Pulsar(QWidget& f, const char* nombre)
{
    QTest::mouseClick(&Hijo<QPushButton>(f, nombre), Qt::LeftButton);
}

static void Elegir(QWidget& f, const char* nombre, int indice)
{
    auto& combo = Hijo<QComboBox>(f, nombre);
    combo.setCurrentIndex(indice);
    Q_EMIT combo.activated(indice);
}

// Shows the choice of formats for the session and runs `hacer` on it.
#define CON_EXISTENTE(hacer)                                                                       \
    Formato_Existente modelo(sesion, "E");                                                         \
    QVERIFY(modelo.Ver());                                                                         \
    Al_Abrirse abierta([&](QWidget& f) { hacer });                                                 \
    Dialogos::Unico<FrmExistformato>().Mostrar_Con(modelo);                                        \
    QCOMPARE(abierta.veces, 1)

void TestDialogos_Formatos::existente_ensena_el_formato_elegido()
{
    CON_EXISTENTE({
        QCOMPARE(f.windowTitle(), QString("Formatos Disponibles para [Datos brutos]"));
        QCOMPARE(Hijo<QComboBox>(f, "CbFormatos").currentIndex(), -1);
        Elegir(f, "CbFormatos", 0);
        QCOMPARE(Hijo<QLineEdit>(f, "TxtDes").text(), QString("De Corto"));
        QCOMPARE(Textos(Hijo<QListWidget>(f, "List2")), (QStringList{"Mira", "Ángulo"}));
        QVERIFY(Textos(Hijo<QListWidget>(f, "List1")).contains("Punto"));
        QVERIFY(Hijo<QCheckBox>(f, "Check1").isChecked());
        QVERIFY(Hijo<QCheckBox>(f, "Check2").isVisible());
        QVERIFY(!Hijo<QLabel>(f, "Label2").isVisible());
        Pulsar(f, "BtnAceptar");
    });
    QCOMPARE(exportados.size(), 1);
    QCOMPARE(exportados[0].formato, QString("Corto"));
    QCOMPARE(Campos_Exportar.mid(0, 3), (QStringList{"Mira", "Ángulo", ""}));
    QVERIFY(Incluir_Cabeceras);
}

void TestDialogos_Formatos::existente_bloqueado_no_deja_cambiar()
{
    CON_EXISTENTE({
        Elegir(f, "CbFormatos", 1);
        QCOMPARE(Hijo<QLabel>(f, "Label2").text(), QString("No modificable"));
        QVERIFY(Hijo<QLabel>(f, "Label2").isVisible());
        QVERIFY(!Hijo<QCheckBox>(f, "Check2").isVisible());
        for (const char* boton : {"BtnAgregar", "BtnQuitar", "Btnsubir", "BtnBajar"})
            QVERIFY2(!Hijo<QPushButton>(f, boton).isEnabled(), boton);
        QVERIFY(!Hijo<QCheckBox>(f, "Check1").isEnabled());
        auto& lista = Hijo<QListWidget>(f, "List1");
        Q_EMIT lista.itemDoubleClicked(lista.item(0));
        QCOMPARE(Textos(Hijo<QListWidget>(f, "List2")), QStringList{"Mira"});
        Pulsar(f, "BtnAceptar");
    });
    QCOMPARE(exportados.size(), 1); // a locked format can be exported
}

void TestDialogos_Formatos::existente_sin_elegir_pita()
{
    CON_EXISTENTE({
        Pulsar(f, "BtnAceptar");
        QCOMPARE(interfaz->pitidos, 1);
        QVERIFY(f.isVisible());
        Pulsar(f, "BtnCancelar");
    });
    QVERIFY(exportados.isEmpty());
}

void TestDialogos_Formatos::existente_acepta_la_lista_vaciada()
{
    CON_EXISTENTE({
        Elegir(f, "CbFormatos", 0);
        Marcar(Hijo<QListWidget>(f, "List2"), {0, 1});
        Pulsar(f, "BtnQuitar");
        Pulsar(f, "BtnAceptar");
    });
    QCOMPARE(exportados.size(), 1);
    QCOMPARE(Campos_Exportar[0], QString());
    QCOMPARE(Campos_Formato(*Base_Datos, "KRT300", "Corto").size(), 2);
}

void TestDialogos_Formatos::existente_cancelado_no_toca_los_campos()
{
    Poner_Campos_Exportar({"Otro"});
    CON_EXISTENTE({
        Elegir(f, "CbFormatos", 0);
        QTest::keyClick(&f, Qt::Key_Escape);
    });
    QCOMPARE(Campos_Exportar[0], QString("Otro"));
    QVERIFY(!Dialogos::Cargado<FrmExistformato>());
}

void TestDialogos_Formatos::varios_pasan_el_ultimo_delante()
{
    CON_EXISTENTE({
        Elegir(f, "CbFormatos", 0);
        auto& lista = Hijo<QListWidget>(f, "List1");
        const QStringList hay = Textos(lista);
        Marcar(lista, {0, 1, 2});
        Pulsar(f, "BtnAgregar");
        QCOMPARE(Textos(Hijo<QListWidget>(f, "List2")),
                 (QStringList{"Mira", "Ángulo", hay[2], hay[1], hay[0]}));
        Pulsar(f, "BtnCancelar");
    });
}

void TestDialogos_Formatos::uno_deja_la_seleccion_en_su_sitio()
{
    CON_EXISTENTE({
        Elegir(f, "CbFormatos", 0);
        auto& lista = Hijo<QListWidget>(f, "List1");
        Marcar(lista, {0});
        Pulsar(f, "BtnAgregar");
        Pulsar(f, "BtnAgregar");
        QCOMPARE(Hijo<QListWidget>(f, "List2").count(), 4);
        QVERIFY(lista.item(0)->isSelected());
        Pulsar(f, "BtnCancelar");
    });
}

void TestDialogos_Formatos::subir_el_primero_no_hace_nada()
{
    CON_EXISTENTE({
        Elegir(f, "CbFormatos", 0);
        auto& lista = Hijo<QListWidget>(f, "List2");
        Marcar(lista, {0});
        Pulsar(f, "Btnsubir");
        QCOMPARE(Textos(lista), (QStringList{"Mira", "Ángulo"}));
        QVERIFY(lista.item(0)->isSelected());
        Pulsar(f, "BtnBajar");
        QCOMPARE(Textos(lista), (QStringList{"Ángulo", "Mira"}));
        QVERIFY(lista.item(1)->isSelected());
        Pulsar(f, "BtnCancelar");
    });
}

void TestDialogos_Formatos::doble_pulsacion_pasa_un_campo()
{
    CON_EXISTENTE({
        Elegir(f, "CbFormatos", 0);
        auto& lista = Hijo<QListWidget>(f, "List1");
        const QString campo = lista.item(1)->text();
        QTest::mouseDClick(lista.viewport(), Qt::LeftButton, {},
                           lista.visualItemRect(lista.item(1)).center());
        Q_UNUSED(campo)
        Marcar(lista, {1});
        Q_EMIT lista.itemDoubleClicked(lista.item(1));
        QCOMPARE(Hijo<QListWidget>(f, "List2").item(2)->text(), campo);
        Pulsar(f, "BtnCancelar");
    });
}

#define CON_NUEVO(sesion_o_nada, hacer)                                                            \
    Formato_Nuevo modelo("KRT300", sesion_o_nada);                                                 \
    modelo.Crear();                                                                                \
    Al_Abrirse abierta([&](QWidget& f) { hacer });                                                 \
    Dialogos::Unico<FrmNuevoformato>().Mostrar_Con(modelo);                                        \
    QCOMPARE(abierta.veces, 1)

void TestDialogos_Formatos::nuevo_sin_nombre_o_sin_campos_avisa()
{
    CON_NUEVO(std::nullopt, {
        Pulsar(f, "BtnAceptar");
        QCOMPARE(interfaz->Textos(),
                 QStringList{"El Nombre del formato no puede quedar en blanco!!"});
        QCOMPARE(f.focusWidget(), &Hijo<QComboBox>(f, "Txt"));
        QTest::keyClicks(Hijo<QComboBox>(f, "Txt").lineEdit(), "Mio");
        Pulsar(f, "BtnAceptar");
        QCOMPARE(interfaz->Textos().last(),
                 QString("No se han seleccionado campos para el formato"));
        QCOMPARE(interfaz->avisos.last().icono, Icono::Critico);
        QCOMPARE(Hijo<QComboBox>(f, "Txt").currentText(), QString("Mio"));
        Pulsar(f, "BtnCancelar");
    });
    QCOMPARE(Nombres_Formatos(*Base_Datos, "KRT300").size(), 2);
}

void TestDialogos_Formatos::nuevo_se_guarda_desde_el_teclado()
{
    CON_NUEVO(std::nullopt, {
        QTest::keyClicks(Hijo<QComboBox>(f, "Txt").lineEdit(), QString("Cor") + QString("to2"));
        QTest::keyClicks(&Hijo<QLineEdit>(f, "TxtDes"), "Nuevo");
        auto& lista = Hijo<QListWidget>(f, "List1");
        QCOMPARE(lista.item(0)->text(), QString("Punto"));
        Marcar(lista, {0});
        QTest::keyClick(&Hijo<QPushButton>(f, "BtnAgregar"), Qt::Key_Space);
        Hijo<QCheckBox>(f, "Check1").setChecked(true);
        QTest::keyClick(&Hijo<QPushButton>(f, "BtnAceptar"), Qt::Key_Space);
    });
    const auto formato = Buscar_Formato(*Base_Datos, "KRT300", "Corto2");
    QVERIFY(formato.has_value());
    QCOMPARE(formato->descripcion, QString("Nuevo"));
    QVERIFY(formato->cabeceras);
    QCOMPARE(Campos_Formato(*Base_Datos, "KRT300", "Corto2"), QStringList{"Punto"});
    QVERIFY(exportados.isEmpty());
    QVERIFY(!Dialogos::Cargado<FrmNuevoformato>());
}

void TestDialogos_Formatos::nuevo_tecleado_con_nombre_que_hay_se_rechaza()
{
    Formato("Largo", true, {"Punto", "Nota"});
    CON_NUEVO(std::nullopt, {
        auto& nombre = Hijo<QComboBox>(f, "Txt");
        QTest::keyClicks(nombre.lineEdit(), "Largo");
        // Leaving the box is no picking from its list.
        nombre.lineEdit()->setFocus();
        Hijo<QLineEdit>(f, "TxtDes").setFocus();
        Q_EMIT nombre.lineEdit()->editingFinished();
        Marcar(Hijo<QListWidget>(f, "List1"), {0});
        Pulsar(f, "BtnAgregar");
        Pulsar(f, "BtnAceptar");
        QVERIFY(f.isVisible());
        QCOMPARE(nombre.currentText(), QString("Largo"));
        f.close();
    });
    QCOMPARE(interfaz->avisos.size(), 1);
    QVERIFY2(interfaz->avisos[0].texto.contains("(3022) "), qPrintable(interfaz->avisos[0].texto));
    interfaz->avisos.clear();
    QCOMPARE(Campos_Formato(*Base_Datos, "KRT300", "Largo"), (QStringList{"Punto", "Nota"}));
}

void TestDialogos_Formatos::nuevo_elegido_de_la_lista_se_cambia()
{
    Formato("Largo", true, {"Punto", "Nota"});
    CON_NUEVO(std::nullopt, {
        auto& nombre = Hijo<QComboBox>(f, "Txt");
        QTest::keyClicks(nombre.lineEdit(), "La");
        while (nombre.currentText() != "Largo")
            QTest::keyClick(&nombre, Qt::Key_Down);
        auto& lista = Hijo<QListWidget>(f, "List1");
        Marcar(lista, {0});
        Pulsar(f, "BtnAgregar");
        Pulsar(f, "BtnAceptar");
    });
    QCOMPARE(interfaz->Textos(), QStringList());
    QCOMPARE(Campos_Formato(*Base_Datos, "KRT300", "Largo"), QStringList{"Punto"});
}

void TestDialogos_Formatos::nuevo_con_sesion_sigue_a_exportar()
{
    CON_NUEVO(sesion, {
        QTest::keyClicks(Hijo<QComboBox>(f, "Txt").lineEdit(), "Mio");
        Marcar(Hijo<QListWidget>(f, "List1"), {1});
        Pulsar(f, "BtnAgregar");
        Pulsar(f, "BtnAceptar");
    });
    QCOMPARE(exportados.size(), 1);
    QCOMPARE(exportados[0].formato, QString("Mio"));
    QCOMPARE(exportados[0].id, 1);
}

void TestDialogos_Formatos::mantenimiento_guarda_lo_cambiado()
{
    Frmformatos& f = Dialogos::Unico<Frmformatos>();
    f.Mostrar();
    Elegir(f, "DBCombo1", 0);
    QCOMPARE(Hijo<QLabel>(f, "LblTip").text(), QString("Datos brutos"));
    QCOMPARE(Hijo<QLabel>(f, "Label5").text(), QString("Si"));
    QTest::keyClicks(&Hijo<QLineEdit>(f, "TxtDes"), " bis");
    Hijo<QCheckBox>(f, "ChkCab").setChecked(false);
    Marcar(Hijo<QListWidget>(f, "List2"), {1});
    Pulsar(f, "Command1");
    Pulsar(f, "BtnGuardar");
    const auto formato = Buscar_Formato(*Base_Datos, "KRT300", "Corto");
    QCOMPARE(formato->descripcion, QString("De Corto bis"));
    QVERIFY(!formato->cabeceras);
    QCOMPARE(Campos_Formato(*Base_Datos, "KRT300", "Corto"), (QStringList{"Ángulo", "Mira"}));
    QVERIFY(interfaz->avisos.isEmpty());

    Elegir(f, "DBCombo1", 1);
    QCOMPARE(Hijo<QLabel>(f, "Label5").text(), QString("No"));
    QVERIFY(!Hijo<QPushButton>(f, "Command2").isEnabled());
    Pulsar(f, "BtnGuardar");
    QCOMPARE(interfaz->pitidos, 1);
}

void TestDialogos_Formatos::mantenimiento_recuerda_el_ultimo()
{
    Frmformatos& f = Dialogos::Unico<Frmformatos>();
    f.Mostrar();
    Elegir(f, "DBCombo1", 1);
    Pulsar(f, "BtnSalir");
    QVERIFY(base->Leer("Posicion.ini").contains("[FORMATOKRT300]\r\nformato=Fijo"));
    QCOMPARE(Hijo<QComboBox>(Dialogos::Unico<Frmformatos>(), "DBCombo1").currentText(),
             QString("Fijo"));
}

void TestDialogos_Formatos::mantenimiento_borra_tambien_el_bloqueado()
{
    Frmformatos& f = Dialogos::Unico<Frmformatos>();
    f.Mostrar();
    Pulsar(f, "BtnEliminar");
    QCOMPARE(interfaz->pitidos, 1);
    Elegir(f, "DBCombo1", 1);
    interfaz->respuestas = {false, true};
    Pulsar(f, "BtnEliminar");
    QCOMPARE(interfaz->Textos(), QStringList{"¿ Desea Eliminar el Formato ?"});
    QCOMPARE(Hijo<QComboBox>(f, "DBCombo1").count(), 2);
    Pulsar(f, "BtnEliminar");
    QCOMPARE(Hijo<QComboBox>(f, "DBCombo1").count(), 1);
    QCOMPARE(Hijo<QComboBox>(f, "DBCombo1").currentText(), QString());
    QCOMPARE(Hijo<QListWidget>(f, "List2").count(), 0);
    QVERIFY(!Buscar_Formato(*Base_Datos, "KRT300", "Fijo"));
    QCOMPARE(interfaz->Textos(), QStringList(QList<QString>(2, "¿ Desea Eliminar el Formato ?")));
}

void TestDialogos_Formatos::mantenimiento_sigue_al_modelo()
{
    base->Fila("Formatos1",
               {{"Nombre", "Otro"}, {"Maquina", "PX7"}, {"ope", 0}, {"Modificable", "SI"}});
    Frmformatos& f = Dialogos::Unico<Frmformatos>();
    f.Mostrar();
    Elegir(f, "DBCombo1", 0);
    Clave_Estacion = "PX7";
    Q_EMIT Sucesos::Unico().modelo_cambiado();
    auto& combo = Hijo<QComboBox>(f, "DBCombo1");
    QCOMPARE(combo.count(), 1);
    QCOMPARE(combo.itemText(0), QString("Otro"));
}

void TestDialogos_Formatos::los_textos_son_los_suyos()
{
    const Frmformatos& f = Dialogos::Unico<Frmformatos>();
    QCOMPARE(Hijo<QPushButton>(f, "BtnNuevo").text(), QString("&Nuevo"));
    QCOMPARE(Hijo<QPushButton>(f, "BtnNuevo").toolTip(), QString("Crea un nuevo Formato"));
    QCOMPARE(Hijo<QPushButton>(f, "BtnEliminar").toolTip(),
             QString("Elimina el Formato en edición"));
    QCOMPARE(Hijo<QPushButton>(f, "BtnGuardar").toolTip(),
             QString("Guarda el Formato que está en edición"));
    QCOMPARE(Hijo<QPushButton>(f, "BtnSalir").text(), QString("&Cerrar"));
    const FrmExistformato& e = Dialogos::Unico<FrmExistformato>();
    QCOMPARE(e.windowTitle(), QString("Formatos"));
    QCOMPARE(Hijo<QCheckBox>(e, "Check1").text(), QString(" Incluir Cabeceras"));
    QCOMPARE(Hijo<QCheckBox>(e, "Check2").text(), QString(" Modificable"));
    QCOMPARE(Hijo<QPushButton>(e, "BtnAgregar").text(), QString("Agregar"));
    QCOMPARE(Dialogos::Unico<FrmNuevoformato>().windowTitle(), QString("Crear formato nuevo"));
}

PRUEBA(TestDialogos_Formatos)
#include "TestDialogos_Formatos.moc"
