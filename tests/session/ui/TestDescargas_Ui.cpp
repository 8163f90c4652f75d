#include "core/Sesiones.h"
#include "core/Sucesos.h"
#include "core/ui/Dialogos.h"
#include "session/ui/FrmDatos.h"
#include "session/ui/frmDescargas.h"
#include "session/ui/FrmEditar.h"
#include "tests/apoyo/Instrumentos.h"
#include "tests/apoyo/Prueba.h"
#include "tests/apoyo/Sala_Ventanas.h"

#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QTableView>
#include <QTableWidget>

class TestDescargas_Ui : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void init();
    void cleanup();
    void los_botones_y_sus_consejos();
    void la_rejilla_por_columnas();
    void la_nueva_sale_primera_al_refrescar();
    void otra_familia_al_abrir_de_nuevo();
    void sin_filas_pita_y_no_falla();
    void ver_datos_de_la_sesion_elegida();
    void una_sesion_sin_lineas_lo_dice();
    void borrar_pregunta_y_refresca();
    void borrada_la_unica_se_empieza_de_nuevo();
    void los_formatos_pasan_por_su_puerta();
    void cerrar_descarga_y_la_ayuda();
    void las_columnas_de_datos_por_operacion_data();
    void las_columnas_de_datos_por_operacion();
    void los_generales_siguen_a_la_fila();
    void los_generales_del_krt800();
    void ver_con_formato();
    void avanzar_y_retroceder();
    void las_teclas_mas_y_menos();
    void la_operacion_4_no_avanza();
    void una_clase_desconocida_calla();
    void cerrar_los_visores_los_oculta();

private:
    frmDescargas& Abrir();
    static QStringList Celdas(const QAbstractItemView& rejilla, int fila);
    void Pulsar(const QObject& donde, const char* boton)
    {
        QTest::mouseClick(&Hijo<QPushButton>(donde, boton), Qt::LeftButton);
    }
    std::unique_ptr<Sala_Ventanas> sala;
};

void TestDescargas_Ui::init()
{
    sala = std::make_unique<Sala_Ventanas>();
    Poner_Instrumentos(*sala);
    Clave_Estacion = "KRT300";
    Nombre_Estacion = "KRT300-1";
    Puertas_De_Descargas() = {};
}

void TestDescargas_Ui::cleanup()
{
    sala.reset();
}

frmDescargas& TestDescargas_Ui::Abrir()
{
    auto& frm = Dialogos::Unico<frmDescargas>();
    frm.Mostrar();
    return frm;
}

QStringList TestDescargas_Ui::Celdas(const QAbstractItemView& rejilla, int fila)
{
    QStringList celdas;
    for (int c = 0; c < rejilla.model()->columnCount(); ++c)
        celdas << rejilla.model()->index(fila, c).data().toString();
    return celdas;
}

void TestDescargas_Ui::los_botones_y_sus_consejos()
{
    auto& frm = Abrir();
    QCOMPARE(frm.windowTitle(), QString("Descargas"));
    const char* const botones[][3] = {
        {"BtnVerdatos", "&Ver Datos", "Muestra los datos obtenidos en la descarga"},
        {"BtnNuevoformato", "Ex Formato &Nuevo",
         "Exporta los datos seleccionados usando un formato nuevo"},
        {"BtnFormatoExistente", "Ex Formato &Existente",
         "Exporta los datos seleccionados eligiendo un formato existente"},
        {"BtnPrn", "&Imprimir Fichero", "Imprime la sesión seleccionada"},
        {"BtnExpBru", "Guardar Como...", "Guardar datos del fichero seleccionado"},
        {"BtnImpBrud1", "Importar de Disco", "Importar Fichero en Bruto"},
        {"BtnEliminar", "&Borrar Fichero", "Elimina la Sesión Seleccionada"},
        {"BtnCan", "&Cerrar", "Oculta el formulario"},
        {"btnAyuda", "&Ayuda", ""}};
    for (const auto& b : botones) {
        QCOMPARE(Hijo<QPushButton>(frm, b[0]).text(), QString(b[1]));
        QCOMPARE(Hijo<QPushButton>(frm, b[0]).toolTip(), QString(b[2]));
    }
}

void TestDescargas_Ui::la_rejilla_por_columnas()
{
    Poner_Sesion(*sala, 1, "KRT300", 0, {{"1", "cA"}});
    Base_Datos->Execute("UPDATE Sesiones SET Fecha='2024-03-09 07:05:02', MaqDes='KRT310', "
                        "NFichero='Obra', NPuntos=12");
    auto& rejilla = Hijo<QTableView>(Abrir(), "DBGrid1");
    QStringList titulos;
    for (int c = 0; c < rejilla.model()->columnCount(); ++c)
        titulos << rejilla.model()->headerData(c, Qt::Horizontal).toString();
    QCOMPARE(titulos, QStringList({"Id Sesión", "Fecha", "Hora", "Tipo Fichero", "Nombre de Sesión",
                                   "Aparato", "Nº Puntos"}));
    QCOMPARE(Celdas(rejilla, 0), QStringList({"1", "09/03/2024", "07:05:02", "Datos de medición",
                                              "Obra", "KRT310", "12"}));
}

void TestDescargas_Ui::la_nueva_sale_primera_al_refrescar()
{
    Poner_Sesion(*sala, 1, "KRT300", 0, {{"1", "cA"}});
    auto& frm = Abrir();
    auto& rejilla = Hijo<QTableView>(frm, "DBGrid1");
    Poner_Sesion(*sala, 2, "KRT300", 0, {{"1", "cA"}});
    QCOMPARE(rejilla.model()->rowCount(), 1);
    frm.Refrescar();
    QCOMPARE(rejilla.model()->rowCount(), 2);
    QCOMPARE(Celdas(rejilla, 0)[0], QString("2"));
    QCOMPARE(rejilla.currentIndex().row(), 0);
}

void TestDescargas_Ui::otra_familia_al_abrir_de_nuevo()
{
    Poner_Sesion(*sala, 1, "KRT300", 0, {{"1", "cA"}});
    Poner_Sesion(*sala, 2, "KRT800", 4, {{"1", "a,1,2,3"}});
    auto* frm = &Abrir();
    QCOMPARE(Celdas(Hijo<QTableView>(*frm, "DBGrid1"), 0)[0], QString("1"));
    Clave_Estacion = "KRT800";
    frm->Refrescar();
    QCOMPARE(Celdas(Hijo<QTableView>(*frm, "DBGrid1"), 0)[0], QString("1"));
    frm->Descargar();
    frm = &Abrir();
    QCOMPARE(Celdas(Hijo<QTableView>(*frm, "DBGrid1"), 0)[0], QString("2"));
}

void TestDescargas_Ui::sin_filas_pita_y_no_falla()
{
    auto& frm = Abrir();
    QStringList puertas;
    Puertas_De_Descargas().Guardar_Bruto = [&](const Sesion_Elegida&) { puertas << "bruto"; };
    Pulsar(frm, "BtnVerdatos");
    Pulsar(frm, "BtnExpBru");
    Pulsar(frm, "BtnEliminar");
    QCOMPARE(sala->interfaz.pitidos, 3);
    QCOMPARE(sala->interfaz.cursor, 0);
    QVERIFY(puertas.isEmpty());
    QVERIFY(!Dialogos::Cargado<FrmDatos>());
}

void TestDescargas_Ui::ver_datos_de_la_sesion_elegida()
{
    Poner_Sesion(*sala, 1, "KRT300", 1, {{"P1", " y+0001234567"}, {"P1", " cA"}});
    Poner_Sesion(*sala, 2, "KRT300", 0, {{"P9", " cZ"}});
    auto& frm = Abrir();
    Hijo<QTableView>(frm, "DBGrid1").selectRow(1);
    Al_Abrirse abierta([&](QWidget& w) {
        QCOMPARE(w.windowTitle(),
                 QString("Datos de la sesión con id (1)   (Datos de coordenadas)"));
        auto& rejilla = Hijo<QTableView>(w, "DBGrid1");
        QStringList titulos;
        for (int c = 0; c < 3; ++c)
            titulos << rejilla.model()->headerData(c, Qt::Horizontal).toString();
        QCOMPARE(titulos, QStringList({"Punto", "Campo", "DATOS"}));
        QCOMPARE(rejilla.model()->rowCount(), 2);
        QCOMPARE(Celdas(rejilla, 0), QStringList({"P1", "Coordenada x", " y+0001234567"}));
        QCOMPARE(Hijo<QPushButton>(w, "BtnOperaciones").text(), QString("&Ver con formato"));
        QTest::keyClick(&w, Qt::Key_Escape);
    });
    Pulsar(frm, "BtnVerdatos");
    QCOMPARE(abierta.veces, 1);
    QCOMPARE(sala->interfaz.cursor, 0);
}

void TestDescargas_Ui::una_sesion_sin_lineas_lo_dice()
{
    Poner_Sesion(*sala, 1, "KRT300", 0, {});
    Pulsar(Abrir(), "BtnVerdatos");
    QCOMPARE(sala->Tomar_Avisos(), QStringList("No hay datos disponibles!!!"));
    QVERIFY(!Dialogos::Visible<FrmDatos>());
}

void TestDescargas_Ui::borrar_pregunta_y_refresca()
{
    Poner_Sesion(*sala, 1, "KRT300", 0, {{"1", "cA"}});
    Poner_Sesion(*sala, 2, "KRT300", 0, {{"1", "cB"}, {"2", "cC"}});
    auto& frm = Abrir();
    auto& rejilla = Hijo<QTableView>(frm, "DBGrid1");
    sala->interfaz.respuestas = {false, true};
    Pulsar(frm, "BtnEliminar");
    QCOMPARE(rejilla.model()->rowCount(), 2);
    Pulsar(frm, "BtnEliminar");
    QCOMPARE(rejilla.model()->rowCount(), 1);
    QCOMPARE(Celdas(rejilla, 0)[0], QString("1"));
    QCOMPARE(sala->interfaz.avisos[0].icono, Icono::Pregunta);
    QCOMPARE(sala->Tomar_Avisos(),
             QStringList({"Desea Eliminar la Descarga ?", "Desea Eliminar la Descarga ?"}));
    QCOMPARE(sala->Columna("SELECT Datos FROM Registros"), QStringList("cA"));
}

void TestDescargas_Ui::borrada_la_unica_se_empieza_de_nuevo()
{
    Poner_Sesion(*sala, 5, "KRT300", 0, {{"1", "cA"}});
    auto& frm = Abrir();
    sala->interfaz.respuestas = {true};
    Pulsar(frm, "BtnEliminar");
    sala->Tomar_Avisos();
    QCOMPARE(Hijo<QTableView>(frm, "DBGrid1").model()->rowCount(), 0);
    QCOMPARE(Siguiente_ID(), 1);
    Pulsar(frm, "BtnEliminar");
    QCOMPARE(sala->interfaz.pitidos, 1);
}

void TestDescargas_Ui::los_formatos_pasan_por_su_puerta()
{
    Poner_Sesion(*sala, 1, "KRT300", 1, {{"1", "cA"}});
    QStringList pasos;
    const auto de = [](const std::optional<Sesion_Elegida>& s) {
        return s ? QString::number(s->id) + s->maquina + QString::number(s->ope) + s->wope
                 : QString("-");
    };
    Puertas_De_Descargas().Formato_Existente = [&](const auto& s, const QString& destino) {
        pasos << destino + de(s);
    };
    Puertas_De_Descargas().Formato_Nuevo = [&](const auto& s) { pasos << "N" + de(s); };
    Puertas_De_Descargas().Guardar_Bruto = [&](const Sesion_Elegida& s) { pasos << "B" + de(s); };
    Puertas_De_Descargas().Importar_Bruto = [&] { pasos << "I"; };
    auto& frm = Abrir();
    for (const char* b :
         {"BtnFormatoExistente", "BtnPrn", "BtnNuevoformato", "BtnExpBru", "BtnImpBrud1"})
        Pulsar(frm, b);
    const QString sesion = "1KRT3001Datos de coordenadas";
    QCOMPARE(pasos, QStringList({"E" + sesion, "I" + sesion, "N" + sesion, "B" + sesion, "I"}));
}

void TestDescargas_Ui::cerrar_descarga_y_la_ayuda()
{
    auto& frm = Abrir();
    Pulsar(frm, "btnAyuda");
    QVERIFY(sala->interfaz.arrancados[0].endsWith("Ayuda,descarg.htm"));
    frm.Marco()->move(77, 66);
    Pulsar(frm, "BtnCan");
    QVERIFY(!Dialogos::Cargado<frmDescargas>());
    QCOMPARE(sala->Leer("Posicion.ini"),
             QByteArray("[DESCARGAS]\r\nstate=0\r\ntop=66\r\nleft=77\r\n"));
}

void TestDescargas_Ui::las_columnas_de_datos_por_operacion_data()
{
    QTest::addColumn<QString>("maquina");
    QTest::addColumn<int>("ope");
    QTest::addColumn<QString>("datos");
    QTest::addColumn<bool>("punto");
    QTest::addColumn<bool>("descr");
    QTest::newRow("KRT300 0") << "KRT300" << 0 << " cA" << false << true;
    QTest::newRow("KRT300 1") << "KRT300" << 1 << " cA" << true << true;
    QTest::newRow("KRT800 4") << "KRT800" << 4 << "P,1,2,3,c" << true << true;
    QTest::newRow("KRT800 5") << "KRT800" << 5 << "texto" << false << false;
    QTest::newRow("KRT800 7") << "KRT800" << 7 << "1 2 3" << false << true;
}

void TestDescargas_Ui::las_columnas_de_datos_por_operacion()
{
    QFETCH(QString, maquina);
    QFETCH(int, ope);
    QFETCH(QString, datos);
    QFETCH(bool, punto);
    QFETCH(bool, descr);
    Clave_Estacion = maquina;
    Poner_Sesion(*sala, 1, maquina, ope, {{"P", datos}});
    Al_Abrirse abierta([&](QWidget& w) {
        auto& rejilla = Hijo<QTableView>(w, "DBGrid1");
        QCOMPARE(rejilla.isColumnHidden(0), !punto);
        QCOMPARE(rejilla.isColumnHidden(1), !descr);
        QCOMPARE(Celdas(rejilla, 0)[2], datos);
        w.close();
    });
    Pulsar(Abrir(), "BtnVerdatos");
    QCOMPARE(abierta.veces, 1);
}

static QStringList Lineas(const QTableWidget& rejilla)
{
    QStringList lineas;
    for (int i = 0; i < rejilla.rowCount(); ++i)
        lineas << rejilla.item(i, 0)->text() + "=" + rejilla.item(i, 1)->text();
    return lineas;
}

void TestDescargas_Ui::los_generales_siguen_a_la_fila()
{
    Poner_Sesion(*sala, 1, "KRT300", 0,
                 {{"1", " cA", "E 100     1500\6?raro"}, {"2", " cB", ""}, {"3", " cC", "E 200"}});
    Al_Abrirse abierta([&](QWidget& w) {
        auto& generales = Hijo<QTableWidget>(w, "MSF");
        QCOMPARE(generales.horizontalHeaderItem(0)->text(), QString("Campo"));
        QCOMPARE(generales.horizontalHeaderItem(1)->text(), QString("Valor"));
        QCOMPARE(Lineas(generales), QStringList({"Estación=100     1500", "=raro"}));
        auto& rejilla = Hijo<QTableView>(w, "DBGrid1");
        QTest::keyClick(&rejilla, Qt::Key_Down);
        QCOMPARE(Lineas(generales), QStringList());
        QTest::keyClick(&rejilla, Qt::Key_Down);
        QCOMPARE(Lineas(generales), QStringList("Estación=200"));
        w.close();
    });
    Pulsar(Abrir(), "BtnVerdatos");
    QCOMPARE(abierta.veces, 1);
}

void TestDescargas_Ui::los_generales_del_krt800()
{
    Clave_Estacion = "KRT800";
    Poner_Sesion(*sala, 1, "KRT800", 1,
                 {{"1", "XYZ P1,1,2,3,c", "STN\5Estación\005100\6STN\5Altura Instrumento\0051.5"}});
    Al_Abrirse abierta([&](QWidget& w) {
        QCOMPARE(Lineas(Hijo<QTableWidget>(w, "MSF")),
                 QStringList({"Estación=100", "Altura Instrumento=1.5"}));
        w.close();
    });
    Pulsar(Abrir(), "BtnVerdatos");
    QCOMPARE(abierta.veces, 1);
}

void TestDescargas_Ui::ver_con_formato()
{
    Desp_X = "100";
    Poner_Sesion(*sala, 1, "KRT300", 0, {{"P7", " H 1234567"}});
    Al_Abrirse editar(
        [&](QWidget& w) {
            QCOMPARE(Hijo<QLabel>(w, "LblPunto").text(), QString("P7"));
            auto& campos = Hijo<QTableWidget>(w, "MSF");
            QCOMPARE(campos.horizontalHeaderItem(0)->text(), QString("Descripción"));
            QCOMPARE(campos.horizontalHeaderItem(1)->text(), QString("Valor"));
            const QStringList lineas = Lineas(campos);
            QCOMPARE(lineas.size(), 3);
            QVERIFY(lineas[0].startsWith("Ángulo Horizontal="));
            QCOMPARE(lineas[2], QString("Nota=--"));
            w.close();
        },
        "FrmEditar");
    Al_Abrirse datos(
        [&](QWidget& w) {
            Pulsar(w, "BtnOperaciones");
            QCOMPARE(editar.veces, 1);
            w.close();
        },
        "FrmDatos");
    Pulsar(Abrir(), "BtnVerdatos");
    QCOMPARE(datos.veces, 1);
    QCOMPARE(Desp_X, QString("0"));
}

void TestDescargas_Ui::avanzar_y_retroceder()
{
    Poner_Sesion(*sala, 1, "KRT300", 0, {{"P1", " cA"}, {"P2", " cB"}});
    QStringList vistos;
    Al_Abrirse editar(
        [&](QWidget& w) {
            auto& punto = Hijo<QLabel>(w, "LblPunto");
            const auto ver = [&] {
                vistos << punto.text() + Lineas(Hijo<QTableWidget>(w, "MSF")).join(' ');
            };
            QCOMPARE(Hijo<QPushButton>(w, "BtnAvanzar").toolTip(),
                     QString("Avanza al siguiente registro de datos (Utilize + desde el teclado)"));
            QCOMPARE(
                Hijo<QPushButton>(w, "BtnRetrasar").toolTip(),
                QString("Retrocede al anterrior registro de datos (Utilize - desde el teclado)"));
            ver();
            Pulsar(w, "BtnAvanzar");
            ver();
            Pulsar(w, "BtnAvanzar");
            ver();
            QCOMPARE(sala->interfaz.avisos.value(0).icono, Icono::Informacion);
            QCOMPARE(sala->Tomar_Avisos(), QStringList("Fin de Datos."));
            Pulsar(w, "BtnRetrasar");
            ver();
            Pulsar(w, "BtnRetrasar");
            ver();
            QCOMPARE(sala->Tomar_Avisos(), QStringList("Fin de Datos."));
            Pulsar(w, "BtnCan");
        },
        "FrmEditar");
    Al_Abrirse datos(
        [&](QWidget& w) {
            Pulsar(w, "BtnOperaciones");
            w.close();
        },
        "FrmDatos");
    Pulsar(Abrir(), "BtnVerdatos");
    QCOMPARE(vistos,
             QStringList({"P1Código=A", "P2Código=B", "P2Código=B", "P1Código=A", "P1Código=A"}));
}

void TestDescargas_Ui::las_teclas_mas_y_menos()
{
    Poner_Sesion(*sala, 1, "KRT300", 0, {{"P1", " cA"}, {"P2", " cB"}, {"P3", " cC"}});
    Al_Abrirse editar(
        [&](QWidget& w) {
            auto& punto = Hijo<QLabel>(w, "LblPunto");
            QTest::keyClick(&w, Qt::Key_Plus);
            QCOMPARE(punto.text(), QString("P2"));
            QTest::keyClick(&Hijo<QTableWidget>(w, "MSF"), Qt::Key_Plus);
            QCOMPARE(punto.text(), QString("P3"));
            QTest::keyClick(&Hijo<QPushButton>(w, "BtnCan"), Qt::Key_Minus);
            QCOMPARE(punto.text(), QString("P2"));
            w.close();
        },
        "FrmEditar");
    int fila = -1;
    Al_Abrirse datos(
        [&](QWidget& w) {
            Pulsar(w, "BtnOperaciones");
            // Both dialogs look at one row.
            fila = Hijo<QTableView>(w, "DBGrid1").currentIndex().row();
            w.close();
        },
        "FrmDatos");
    Pulsar(Abrir(), "BtnVerdatos");
    QCOMPARE(fila, 1);
}

void TestDescargas_Ui::la_operacion_4_no_avanza()
{
    Clave_Estacion = "KRT800";
    Poner_Sesion(*sala, 1, "KRT800", 4, {{"P1", "P1,1,2,3,c"}, {"P2", "P2,1,2,3,c"}});
    Al_Abrirse editar(
        [&](QWidget& w) {
            QVERIFY(!Hijo<QPushButton>(w, "BtnAvanzar").isEnabled());
            QVERIFY(!Hijo<QPushButton>(w, "BtnRetrasar").isEnabled());
            QTest::keyClick(&w, Qt::Key_Plus);
            QCOMPARE(Hijo<QLabel>(w, "LblPunto").text(), QString("P1"));
            w.close();
        },
        "FrmEditar");
    Al_Abrirse datos(
        [&](QWidget& w) {
            Pulsar(w, "BtnOperaciones");
            w.close();
        },
        "FrmDatos");
    Pulsar(Abrir(), "BtnVerdatos");
    QCOMPARE(editar.veces, 1);
}

void TestDescargas_Ui::una_clase_desconocida_calla()
{
    Clave_Estacion = "KRT800";
    Poner_Sesion(*sala, 1, "KRT800", 5, {{"P1", "texto libre"}});
    Al_Abrirse datos(
        [&](QWidget& w) {
            Pulsar(w, "BtnOperaciones");
            QVERIFY(!Dialogos::Visible<FrmEditar>());
            w.close();
        },
        "FrmDatos");
    Pulsar(Abrir(), "BtnVerdatos");
    QCOMPARE(datos.veces, 1);
}

void TestDescargas_Ui::cerrar_los_visores_los_oculta()
{
    Poner_Sesion(*sala, 1, "KRT300", 0, {{"P1", " cA"}});
    Al_Abrirse editar([&](QWidget& w) { Pulsar(w, "BtnCan"); }, "FrmEditar");
    Al_Abrirse datos(
        [&](QWidget& w) {
            Pulsar(w, "BtnOperaciones");
            Pulsar(w, "btnAyuda");
            Pulsar(w, "BtnCan");
        },
        "FrmDatos");
    Pulsar(Abrir(), "BtnVerdatos");
    QCOMPARE(datos.veces, 1);
    QVERIFY(Dialogos::Cargado<FrmDatos>() && Dialogos::Cargado<FrmEditar>());
    QVERIFY(!Dialogos::Visible<FrmDatos>() && !Dialogos::Visible<FrmEditar>());
    QVERIFY(sala->interfaz.arrancados[0].endsWith("Ayuda,vdatos.htm"));
}

PRUEBA(TestDescargas_Ui)
#include "TestDescargas_Ui.moc"
