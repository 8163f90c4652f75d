#include "core/ui/Dialogos.h"
#include "export/Peticiones_Exportar.h"
#include "export/ui/Dialogos_Exportar.h"
#include "export/ui/FrmImpDat.h"
#include "export/ui/FrmImpEdtCol.h"
#include "export/ui/FrmImpFormato.h"
#include "export/ui/Pintor_Pagina.h"
#include "export/ui/Vista_Paginas.h"
#include "formats/ModFormatos.h"
#include "tests/apoyo/Instrumentos.h"
#include "tests/apoyo/Prueba.h"
#include "tests/apoyo/Sala_Ventanas.h"

#include <QCheckBox>
#include <QElapsedTimer>
#include <QLineEdit>
#include <QPushButton>
#include <QRegularExpression>
#include <QScrollBar>
#include <QTableWidget>

class TestFrmImpFormato : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void init();
    void cleanup();
    void los_textos_son_los_suyos();
    void cada_parametro_rehace_la_vista();
    void las_cifras_son_lo_unico_que_entra();
    void los_datos_del_trabajo_exigen_trabajo();
    void una_columna_cambia_de_nombre();
    void un_pdf_tiene_sus_hojas();
    void diez_mil_filas_no_se_hacen_esperar();

private:
    void Con_Dialogo(const std::function<void(FrmImpFormato&)>& hacer);
    static QByteArray Texto(FrmImpFormato& frm)
    {
        return Hijo<Vista_Paginas>(frm, "RTB").property("TextRTF").toByteArray();
    }
    std::unique_ptr<Sala_Ventanas> sala;
};

void TestFrmImpFormato::init()
{
    sala = std::make_unique<Sala_Ventanas>();
    Poner_Instrumentos(*sala);
    Clave_Estacion = "KRT300";
    Poner_Sesion(*sala, 1, "KRT300", 1, {{"P1", " y+0001234567"}, {"P2", " x+0007654321"}});
    Poner_Campos_Exportar({"Punto", "Coordenada X", "Coordenada Y"});
    Incluir_Cabeceras = false;
    Conectar_Dialogos_Exportar();
}

void TestFrmImpFormato::cleanup()
{
    Peticiones_De_Impresion() = {};
    sala.reset();
}

void TestFrmImpFormato::Con_Dialogo(const std::function<void(FrmImpFormato&)>& hacer)
{
    Al_Abrirse abierta(
        [&](QWidget& w) {
            hacer(dynamic_cast<FrmImpFormato&>(w));
            Hijo<QPushButton>(w, "BtnCer").click();
        },
        "FrmImpFormato");
    Peticiones_De_Formatos().Abrir_Imprimir({1, "KRT300", 1, "NXYZ"});
    QCOMPARE(abierta.veces, 1);
    QVERIFY(!Dialogos::Cargado<FrmImpFormato>());
}

void TestFrmImpFormato::los_textos_son_los_suyos()
{
    Con_Dialogo([](FrmImpFormato& frm) {
        QVERIFY(frm.isModal());
        QCOMPARE(frm.windowTitle(), QString("Impresión"));
        const std::pair<const char*, const char*> casillas[] = {
            {"Check1", "Mostrar Título"},
            {"Check4", "Mostrar SubTítulo"},
            {"Check2", "&Mostrar Cabeceras"},
            {"Check5", "&Centrar Datos Horizontalmente"}};
        for (const auto& [nombre, texto] : casillas)
            QCOMPARE(Hijo<QCheckBox>(frm, nombre).text(), QString(texto));
        const std::pair<const char*, const char*> botones[] = {{"BtnIns", "&Datos del trabajo"},
                                                               {"BtnEdtCol", "&Editar Cabeceras"},
                                                               {"BtnImpr", "&Imprimir"},
                                                               {"BtnCer", "&Cerrar"}};
        for (const auto& [nombre, texto] : botones)
            QCOMPARE(Hijo<QPushButton>(frm, nombre).text(), QString(texto));
        QCOMPARE(Hijo<QPushButton>(frm, "BtnIns").toolTip(), QString("Insertar datos del trabajo"));
    });
    QVERIFY(sala->Leer("Posicion.ini").contains("[IMPRESION]"));
}

void TestFrmImpFormato::cada_parametro_rehace_la_vista()
{
    Con_Dialogo([](FrmImpFormato& frm) {
        QByteArray antes = Texto(frm);
        const auto cambia = [&] {
            const QByteArray ahora = Texto(frm);
            return std::exchange(antes, ahora) != ahora;
        };
        for (const char* casilla : {"Check1", "Check4", "Check2", "Check5"}) {
            Hijo<QCheckBox>(frm, casilla).click();
            QVERIFY2(cambia(), casilla);
        }
        Hijo<QLineEdit>(frm, "Text1").setText("Uno");
        QVERIFY(cambia() && antes.contains("\\fs28\\b Uno"));
        Hijo<QLineEdit>(frm, "Text2").setText("Dos");
        QVERIFY(cambia() && antes.contains("\\fs20\\b Dos"));
        Hijo<QLineEdit>(frm, "TxtAnchura").setText("60");
        QVERIFY(cambia());
        Hijo<QLineEdit>(frm, "TxtAltura").setText("9");
        QVERIFY(!cambia());
    });
}

void TestFrmImpFormato::las_cifras_son_lo_unico_que_entra()
{
    Con_Dialogo([](FrmImpFormato& frm) {
        for (const char* caja : {"TxtAnchura", "TxtAltura"}) {
            auto& texto = Hijo<QLineEdit>(frm, caja);
            texto.clear();
            QTest::keyClicks(&texto, "1a-2,.3");
            QCOMPARE(texto.text(), QString("123"));
            QTest::keyClick(&texto, Qt::Key_Backspace);
            QCOMPARE(texto.text(), QString("12"));
        }
    });
}

void TestFrmImpFormato::los_datos_del_trabajo_exigen_trabajo()
{
    Con_Dialogo([&](FrmImpFormato& frm) {
        Al_Abrirse datos(
            [&](QWidget& w) {
                Hijo<QLineEdit>(w, "TxtNombre").setText("Ana");
                Hijo<QPushButton>(w, "BtnAce").click();
                QCOMPARE(sala->Tomar_Avisos(), QStringList{"Debe introducir el Trabajo"});
                QVERIFY(w.isVisible());
                Hijo<QLineEdit>(w, "TxtTrabajo").setText("Presa");
                Hijo<QPushButton>(w, "BtnAce").click();
            },
            "FrmImpDat");
        Hijo<QPushButton>(frm, "BtnIns").click();
        QCOMPARE(datos.veces, 1);
        QVERIFY(Texto(frm).contains("Trabajo:  Presa   Nombre:  Ana   "));
    });
}

void TestFrmImpFormato::una_columna_cambia_de_nombre()
{
    Con_Dialogo([&](FrmImpFormato& frm) {
        Hijo<QCheckBox>(frm, "Check2").setChecked(true);
        for (const bool acepta : {false, true}) {
            sala->interfaz.textos = {QString("Este"), QString(), std::nullopt};
            Al_Abrirse columnas(
                [&](QWidget& w) {
                    QCOMPARE(w.windowTitle(), QString("Editar Cabeceras de Campos"));
                    auto& rejilla = Hijo<QTableWidget>(w, "MSF");
                    QCOMPARE(rejilla.rowCount(), 3);
                    Q_EMIT rejilla.cellDoubleClicked(1, 0);
                    Q_EMIT rejilla.cellDoubleClicked(0, 0);
                    Q_EMIT rejilla.cellDoubleClicked(2, 0);
                    QCOMPARE(rejilla.item(1, 0)->text(), QString("Este"));
                    QCOMPARE(rejilla.item(0, 0)->text(), QString("Punto"));
                    Hijo<QPushButton>(w, acepta ? "BtnAce" : "BtnCan").click();
                },
                "FrmImpEdtCol");
            Hijo<QPushButton>(frm, "BtnEdtCol").click();
            QCOMPARE(columnas.veces, 1);
            QCOMPARE(Texto(frm).contains("Este\\plain"), acepta);
        }
        QCOMPARE(sala->interfaz.preguntas_texto[0],
                 QString("Editar columna|Introduzca el nuevo nombre de la columna|Coordenada X"));
    });
}

void TestFrmImpFormato::un_pdf_tiene_sus_hojas()
{
    for (const bool apaisado : {false, true}) {
        Impreso impreso{"Prueba", {}, apaisado};
        Pagina pagina;
        pagina.append({30, 30, 10, {{"Hola", "Courier New", 16, false, false}}});
        impreso.paginas = {pagina, pagina, pagina};
        const QString fichero = sala->Ruta("a.pdf");
        Guardar_PDF(impreso, fichero);
        const QByteArray pdf = sala->Leer("a.pdf");
        QVERIFY(pdf.startsWith("%PDF-") && pdf.trimmed().endsWith("%%EOF"));
        static const QRegularExpression hoja("/Type\\s*/Page\\b"),
            caja("/MediaBox\\s*\\[\\s*0 0 ([0-9.]+) ([0-9.]+)");
        const QString texto = QString::fromLatin1(pdf);
        QCOMPARE(texto.count(hoja), 3);
        const auto medidas = caja.match(texto);
        QVERIFY(medidas.hasMatch());
        QCOMPARE(medidas.captured(1).toDouble() > medidas.captured(2).toDouble(), apaisado);
        QCOMPARE(qRound(medidas.captured(1).toDouble() + medidas.captured(2).toDouble()),
                 595 + 842);
    }
    const auto numero = [](auto&& hacer) {
        try {
            hacer();
        } catch (const Error_Ejecucion& e) {
            return e.numero;
        }
        return 0;
    };
    QCOMPARE(numero([&] { Guardar_PDF({}, sala->Ruta("no/hay/a.pdf")); }), 76);
}

void TestFrmImpFormato::diez_mil_filas_no_se_hacen_esperar()
{
    QList<Linea_De_Prueba> lineas;
    for (int i = 0; i < 10000; ++i)
        lineas << Linea_De_Prueba{QString::number(i),
                                  QStringLiteral(" y+000123%1").arg(i, 4, 10, QChar('0'))};
    Poner_Sesion(*sala, 2, "KRT300", 1, lineas);
    Al_Abrirse abierta(
        [&](QWidget& w) {
            auto& vista = Hijo<Vista_Paginas>(w, "RTB");
            QVERIFY(vista.Paginas().size() > 100);
            QElapsedTimer reloj;
            reloj.start();
            Hijo<QCheckBox>(w, "Check2").click();
            // A debug build on a busy machine; the release takes a twentieth of it.
            QVERIFY2(reloj.elapsed() < 5000, qPrintable(QString::number(reloj.elapsed())));
            for (int i = 0; i < 20; ++i) {
                QTest::keyClick(&vista, Qt::Key_PageDown);
                vista.viewport()->repaint();
            }
            QVERIFY(vista.verticalScrollBar()->value() > 0);
            QTest::keyClick(&vista, Qt::Key_End);
            QCOMPARE(vista.verticalScrollBar()->value(), vista.verticalScrollBar()->maximum());
            w.close();
        },
        "FrmImpFormato");
    Peticiones_De_Formatos().Abrir_Imprimir({2, "KRT300", 1, "NXYZ"});
    QCOMPARE(abierta.veces, 1);
}

PRUEBA(TestFrmImpFormato)
#include "TestFrmImpFormato.moc"
