#include "core/Reloj.h"
#include "session/Peticiones_Sesion.h"
#include "tests/apoyo/Base_De_Prueba.h"
#include "tests/apoyo/Interfaz_Guion.h"
#include "tests/apoyo/Prueba.h"
#include "tests/apoyo/Puerto_Memoria.h"
#include "transfer/enlace/Envio.h"
#include "transfer/krt800/Subida_KRT800.h"
#include "transfer/Peticiones_Transfer.h"

namespace {
const QString FILTRO = "Puntos ASCII (*.asc)|*.asc";
}

class TestSubida_KRT800 : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void init();
    void cleanup();
    void los_puntos_por_su_orden();
    void los_desplazamientos_se_suman();
    void el_separador_que_no_es_se_dice();
    void lo_que_no_vale_nombra_su_linea_data();
    void lo_que_no_vale_nombra_su_linea();
    void una_libreria_va_como_esta();
    void cada_linea_mala_tiene_su_aviso();
    void sin_nada_no_se_envia_data();
    void sin_nada_no_se_envia();

private:
    void Elegir(const QByteArray& fichero)
    {
        base->Escribir("p.asc", fichero);
        interfaz->ficheros.push_back(Fichero_Elegido{base->Ruta("p.asc"), 1});
    }
    QByteArray Enviado()
    {
        if (!envio) return "(nada)";
        envio->BtnIniciar();
        return puerto->Tomar();
    }

    std::unique_ptr<Base_De_Prueba> base;
    std::unique_ptr<Interfaz_Guion> interfaz;
    std::unique_ptr<Envio> envio;
    std::unique_ptr<Reloj_Rapido> reloj;
    Puerto_Memoria* puerto = nullptr;
    Peticiones_Transfer antes;
    Peticiones_Sesion antes_sesion;
    QStringList pasos;
    QString separador;
};

void TestSubida_KRT800::init()
{
    base = std::make_unique<Base_De_Prueba>();
    interfaz = std::make_unique<Interfaz_Guion>();
    reloj = std::make_unique<Reloj_Rapido>(1000);
    Poner_Reloj(reloj.get());
    antes = Peticiones_De_Transfer();
    antes_sesion = Peticiones_De_Sesion();
    pasos.clear();
    separador = ",";
    Clave_Estacion = "KRT800";
    Puerto = "COM1";
    Base_Datos->Execute("INSERT INTO OPE (OPE, DESOPE) VALUES (4, 'Puntos')");
    Base_Datos->Execute("INSERT INTO KRT2 (Nombre, OPE, TipOpe, DESOPE, Conv) VALUES "
                        "('KRT800', 4, 'C', 'Puntos', '')");
    Ayuda_Recuerde = Ayuda_Visible = Offset_Cargas = true;
    Peticiones_Transfer& t = Peticiones_De_Transfer();
    t.Ocultar_FrmIni = [this] { pasos << "ocultar"; };
    t.Mostrar_Recordatorio = [this] { pasos << "recuerde"; };
    t.Mostrar_Pasos = [this](const QString& tipo, const QString& ope) {
        pasos << "ayuda " + tipo + ope;
    };
    t.Dialogo_Envio = [this] {
        auto p = std::make_unique<Puerto_Memoria>();
        puerto = p.get();
        envio = std::make_unique<Envio>(std::move(p));
        return envio.get();
    };
    t.Mostrar_Envio = [this] { pasos << "envio"; };
    Peticiones_Sesion& s = Peticiones_De_Sesion();
    s.Pedir_Separador = [this] {
        pasos << "separador";
        return separador;
    };
    s.Pedir_Desplazamientos = [this](bool x, bool y, bool z, const QString& formato) {
        pasos << QStringLiteral("desplazar %1%2%3 ").arg(x).arg(y).arg(z) + formato;
        return true;
    };
}

void TestSubida_KRT800::cleanup()
{
    Peticiones_De_Transfer() = antes;
    Peticiones_De_Sesion() = antes_sesion;
    envio.reset();
    Poner_Reloj(nullptr);
    interfaz.reset();
    base.reset();
}

void TestSubida_KRT800::los_puntos_por_su_orden()
{
    Desp_X = "99";
    Elegir("P1,1000,2000.5,-0.0004,ARQ\r\n\r\nP2,1,2\r\nP3,12.9996,0,.25,\r\n");
    Subir_Puntos_KRT800(4, FILTRO);
    QCOMPARE(interfaz->peticiones[0].titulo, QString("Puntos Seleccione Fichero"));
    QCOMPARE(interfaz->peticiones[0].filtro, FILTRO);
    QCOMPARE(pasos, QStringList({"ocultar", "separador", "desplazar 111 7,3", "recuerde",
                                 "ayuda C4", "envio"}));
    // A short line sends the one before again; the lost carry and the sign of the sum stay.
    QCOMPARE(Enviado(), QByteArray("P1,1000.000,2000.500,-0.000,ARQ\r\n"
                                   "P1,1000.000,2000.500,-0.000,ARQ\r\n"
                                   "P3,12.100,0.000,0.250,\r\n\4"));
    QVERIFY(interfaz->avisos.isEmpty());
}

void TestSubida_KRT800::los_desplazamientos_se_suman()
{
    Peticiones_De_Sesion().Pedir_Desplazamientos = [](bool, bool, bool, const QString&) {
        Desp_X = "1000";
        Desp_Z = "-0.5";
        return true;
    };
    separador = " ";
    Elegir("P1  1,5   2   3  A\r\n");
    Subir_Puntos_KRT800(4, FILTRO);
    QCOMPARE(Enviado(), QByteArray("P1,1001.500,2.000,2.500,A\r\n\4"));
}

void TestSubida_KRT800::el_separador_que_no_es_se_dice()
{
    Elegir("\r\nP1 1 2 3\r\nP2 1 2 3\r\n");
    Subir_Puntos_KRT800(4, FILTRO);
    QCOMPARE(interfaz->Textos(),
             QStringList{"El formato del fichero especificado no es correcto en la linea:\r\n"
                         "P1 1 2 3Probablemente el separador especificado no sea válido"});
    QVERIFY(!envio);
}

void TestSubida_KRT800::lo_que_no_vale_nombra_su_linea_data()
{
    QTest::addColumn<QByteArray>("fichero");
    QTest::addColumn<QString>("aviso");
    QTest::newRow("letras") << QByteArray("P1;1;2;3\n\nP2;1;x;3\n")
                            << "(13) No coinciden los tipos (línea 3: P2;1;x;3)";
    QTest::newRow("coma en el nombre")
        << QByteArray("P,1;1;2;3\n") << "(5) El carácter ',' es reservado (línea 1: P,1;1;2;3)";
    QTest::newRow("coma en el codigo")
        << QByteArray("P1;1;2;3;A,B\n")
        << "(5) El carácter ',' es reservado (línea 1: P1;1;2;3;A,B)";
    QTest::newRow("enye en el codigo")
        << QByteArray("P1;1;2;3;CA\xD1O\n")
        << "(5) El carácter 'Ñ' no es aceptado por el aparato (línea 1: P1;1;2;3;CAÑO)";
    QTest::newRow("fin de transmision")
        << QByteArray("P\4;1;2;3\n")
        << "(5) El carácter '\4' no es aceptado por el aparato (línea 1: "
           "P\4;1;2;3)";
    QTest::newRow("utf-8") << QByteArray("P1;1;2;3;CA\xC3\x91O\n")
                           << "(321) El fichero está en UTF-8; guárdelo como texto ANSI (línea 1)";
}

void TestSubida_KRT800::lo_que_no_vale_nombra_su_linea()
{
    QFETCH(QByteArray, fichero);
    QFETCH(QString, aviso);
    separador = ";";
    Elegir(fichero);
    Subir_Puntos_KRT800(4, FILTRO);
    QCOMPARE(interfaz->Textos(),
             QStringList{"Se produjo un error al Procesar el Fichero\r" + aviso});
    QVERIFY(!envio);
}

void TestSubida_KRT800::una_libreria_va_como_esta()
{
    Elegir("ARBOL,1,VEGETACION\nBORDILLO,2,VIALES");
    Subir_Libreria_KRT800(FILTRO);
    // Without the reminder.
    QCOMPARE(pasos, QStringList({"ocultar", "ayuda C2", "envio"}));
    QCOMPARE(Enviado(), QByteArray("ARBOL,1,VEGETACION\r\nBORDILLO,2,VIALES\r\n\4"));
}

void TestSubida_KRT800::cada_linea_mala_tiene_su_aviso()
{
    Elegir("ARBOL,1,VEGETACION\nA,1,B,C\nBORDILLO,2,VIALES\nX\nCA\xD1O,1,A\n");
    Subir_Libreria_KRT800(FILTRO);
    QCOMPARE(
        interfaz->Textos(),
        QStringList({"Número incorrecto de parámetros en la línea 2",
                     "Número incorrecto de parámetros en la línea 4",
                     "La línea 5 contiene el carácter 'Ñ' que no es aceptado por el aparato"}));
    QCOMPARE(interfaz->avisos[0].icono, Icono::Critico);
    QVERIFY(!envio);
}

void TestSubida_KRT800::sin_nada_no_se_envia_data()
{
    QTest::addColumn<bool>("libreria");
    QTest::addColumn<QString>("aviso");
    QTest::newRow("libreria") << true << "El Fichero especificado no existe";
    QTest::newRow("puntos") << false << "Se produjo un error al Procesar el Fichero\r(53) ";
}

void TestSubida_KRT800::sin_nada_no_se_envia()
{
    QFETCH(bool, libreria);
    QFETCH(QString, aviso);
    Elegir({});
    interfaz->ficheros.push_back(Fichero_Elegido{base->Ruta("no.asc"), 1});
    for (int i = 0; i < 2; ++i) {
        if (libreria)
            Subir_Libreria_KRT800(FILTRO);
        else
            Subir_Puntos_KRT800(4, FILTRO);
        QCOMPARE(interfaz->avisos.size(), i + 1);
        QVERIFY2(interfaz->avisos[i].texto.startsWith(aviso),
                 qPrintable(interfaz->avisos[i].texto));
        QVERIFY(!envio);
    }
}

PRUEBA(TestSubida_KRT800)
#include "TestSubida_KRT800.moc"
