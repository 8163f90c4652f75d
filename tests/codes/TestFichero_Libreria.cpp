#include "codes/Fichero_Libreria.h"
#include "core/Ansi.h"
#include "tests/apoyo/Numero_De_Error.h"
#include "tests/apoyo/Prueba.h"
#include "tests/codes/Sala_Librerias.h"

// Libraries as text files, good and bad.
class TestFichero_Libreria : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void se_lee_data();
    void se_lee();
    void no_se_lee_data();
    void no_se_lee();
    void lo_largo_se_corta_y_se_dice();
    void un_fichero_que_falta_cuenta_como_ninguno();
    void lo_exportado_se_importa_igual();
    void exportar_pregunta_y_no_pisa_lo_propio();
    void importar_crea_pregunta_y_reemplaza();
    void importar_sin_nombre_no_toca_nada();

private:
    static const Serie_Librerias& De(const QString& letra)
    {
        return Librerias_De(letra == u"A" ? Serie::A : Serie::B);
    }
};

void TestFichero_Libreria::se_lee_data()
{
    QTest::addColumn<QString>("serie");
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QStringList>("codigos");
    QTest::newRow("A") << "A" << QByteArray("001ARBOL\r\n002CASA\r\n")
                       << QStringList{"ARBOL", "CASA"};
    QTest::newRow("A, orden del fichero, LF y sin fin")
        << "A" << QByteArray("007CASA     \n\n   \n001ARBOL") << QStringList{"CASA", "ARBOL"};
    QTest::newRow("A, hueco") << "A" << QByteArray("001A\r\n002\r\n003C\r\n004\r\n005   \r\n")
                              << QStringList{"A", "", "C"};
    QTest::newRow("A, marca de UTF-8") << "A"
                                       << QByteArray("\xEF\xBB\xBF"
                                                     "001A\r\n")
                                       << QStringList{"A"};
    QTest::newRow("A, CR") << "A" << QByteArray("001A\r002B\r") << QStringList{"A", "B"};
    QTest::newRow("B") << "B" << QByteArray("EJE,2,EJES\r\nBORDE,1,\r\n")
                       << QStringList{"EJE,2,EJES", "BORDE,1,"};
    QTest::newRow("B, blancos") << "B" << QByteArray(" EJE , 2 , EJES \r\n")
                                << QStringList{"EJE,2,EJES"};
}

void TestFichero_Libreria::se_lee()
{
    Sala_Librerias sala;
    QFETCH(QString, serie);
    QFETCH(QByteArray, bytes);
    QFETCH(QStringList, codigos);
    sala.Escribir("l.txt", bytes);
    const auto leida = Abrir_Fichero_Libreria(De(serie), sala.Ruta("l.txt"));
    QVERIFY2(leida, qPrintable(sala.interfaz.Textos().join('|')));
    QStringList textos;
    for (const Codigo_Libreria& c : *leida)
        textos << (serie == u"A" ? c.codigo : De(serie).linea(0, c));
    QCOMPARE(textos, codigos);
    QVERIFY(sala.interfaz.avisos.isEmpty());
}

void TestFichero_Libreria::no_se_lee_data()
{
    QTest::addColumn<QString>("serie");
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QString>("dice");
    const QByteArray utf16("\xFF\xFE"
                           "0\0"
                           "0\0"
                           "1\0",
                           8);
    QTest::newRow("A, letras por dígitos")
        << "A" << QByteArray("001A\r\nX02B\r\n")
        << "Línea 2: 'X02B' no contiene un código de tipo numérico (X02)";
    QTest::newRow("A, eñe") << "A"
                            << QByteArray("001SE\xD1"
                                          "AL\r\n")
                            << "Línea 1: 'SEÑAL'|El carácter 'Ñ' no es aceptado por el aparato";
    QTest::newRow("A, eñe en UTF-8") << "A"
                                     << QByteArray("001SE\xC3\x91"
                                                   "AL\r\n")
                                     << "Línea 1: |no es aceptado por el aparato";
    QTest::newRow("A, reservado") << "A" << QByteArray("001A\r\n\r\n003A_B\r\n")
                                  << "Línea 3: '003A_B' El carácter '_' es reservado";
    QTest::newRow("A, UTF-16") << "A" << utf16 << "Línea 1: no es texto del aparato";
    QTest::newRow("A, cincuenta y uno") << "A" << QByteArray("001A\r\n").repeated(51)
                                        << "Hay 51 códigos y el aparato sólo guarda 50";
    QTest::newRow("A, sin códigos")
        << "A" << QByteArray("001\r\n002   \r\n") << "El fichero no contiene códigos";
    QTest::newRow("A, sólo blancos")
        << "A" << QByteArray("\r\n   \r\n") << "El fichero no contiene códigos";
    QTest::newRow("A, una línea enorme") << "A" << QByteArray(200000, 'x') << "Línea 1: 'xxx|...'";
    QTest::newRow("A, el otro formato")
        << "A" << QByteArray("EJE,2,EJES\r\n") << "Línea 1: 'EJE,2,EJES'";
    QTest::newRow("B, el otro formato")
        << "B" << QByteArray("001ARBOL\r\n")
        << "Línea 1: '001ARBOL' no tiene la forma código,entidad,capa";
    QTest::newRow("B, una coma de más") << "B" << QByteArray("A,1,B,C\r\n") << "Línea 1: ";
    QTest::newRow("B, letras en la entidad") << "B" << QByteArray("A,1,C\r\nB,dos,C\r\n")
                                             << "Línea 2: |la entidad 'dos' no es un número";
    QTest::newRow("B, entidad que no hay")
        << "B" << QByteArray("A,3,C\r\n") << "No existe la entidad 3";
    QTest::newRow("B, sin código")
        << "B" << QByteArray(",1,C\r\n") << "no se puede dejar en blanco";
    QTest::newRow("B, código largo")
        << "B" << QByteArray(21, 'X').append(",1,C\r\n") << "tiene más de 20 caracteres";
}

void TestFichero_Libreria::no_se_lee()
{
    Sala_Librerias sala;
    QFETCH(QString, serie);
    QFETCH(QByteArray, bytes);
    QFETCH(QString, dice);
    sala.Escribir("l.txt", bytes);
    QVERIFY(!Importar_Libreria(De(serie), "NUEVA", "x", sala.Ruta("l.txt")));
    const QStringList avisos = sala.Tomar_Avisos();
    QCOMPARE(avisos.size(), 1);
    const QString aviso = QString(avisos[0]).replace("'001SEÑAL'", "'SEÑAL'");
    for (const QString& parte : dice.split(u'|'))
        QVERIFY2(aviso.contains(parte), qPrintable(aviso));
    QVERIFY(avisos[0].size() < 1500);
    QCOMPARE(sala.Claves(Serie::A).size() + sala.Claves(Serie::B).size(), 4);
}

void TestFichero_Libreria::lo_largo_se_corta_y_se_dice()
{
    Sala_Librerias sala;
    sala.Escribir("l.txt", "001CORTO\r\n002ABCDEFGHIJKL\r\n");
    const auto leida = Abrir_Fichero_Libreria(Librerias_De(Serie::A), sala.Ruta("l.txt"));
    QVERIFY(leida);
    QCOMPARE(Solo_Codigos(*leida), (QStringList{"CORTO", "ABCDEFGHIJ"}));
    QCOMPARE(sala.Tomar_Avisos(),
             QStringList{"El aparato sólo admite códigos de 10 caracteres:\r\nLínea 2: el código "
                         "'ABCDEFGHIJKL' queda en 'ABCDEFGHIJ'"});
}

void TestFichero_Libreria::un_fichero_que_falta_cuenta_como_ninguno()
{
    Sala_Librerias sala;
    sala.Escribir("vacio.txt", "");
    for (const char* fichero : {"no.txt", "vacio.txt", "MDB"})
        QVERIFY(!Abrir_Fichero_Libreria(Librerias_De(Serie::A), sala.Ruta(fichero)));
    const QStringList avisos = sala.Tomar_Avisos();
    QCOMPARE(avisos.size(), 3);
    QCOMPARE(avisos[0], QString("El Fichero especificado no existe"));
    QCOMPARE(avisos[1], avisos[0]);
}

void TestFichero_Libreria::lo_exportado_se_importa_igual()
{
    Sala_Librerias sala;
    sala.Crear_A("HUECOS", {"UNO", "", "DIEZ CARAC", "a~ !"});
    for (const auto& [serie, nombre] :
         {std::pair{Serie::A, "HUECOS"}, {Serie::A, "GEN"}, {Serie::B, "CAR"}}) {
        const Serie_Librerias& s = Librerias_De(serie);
        const Lista_De_Codigos codigos = Leer_Codigos(*Base_Datos, s, nombre);
        const QString fichero = sala.Ruta(QString("x%1.txt").arg(nombre));
        QVERIFY(Exportar_Libreria(s, codigos, fichero));
        QVERIFY(Importar_Libreria(s, "COPIA", "x", fichero));
        QCOMPARE(Leer_Codigos(*Base_Datos, s, "COPIA"), codigos);
        Eliminar_Libreria(*Base_Datos, s, "COPIA");
    }
    QCOMPARE(sala.Leer("xHUECOS.txt"), QByteArray("001UNO\r\n002\r\n003DIEZ CARAC\r\n004a~ !\r\n"));
    QCOMPARE(sala.Leer("xCAR.txt"), QByteArray("EJE,2,EJES\r\nBORDE,1,CALZADA\r\n"));
    QVERIFY(sala.interfaz.avisos.isEmpty());
}

void TestFichero_Libreria::exportar_pregunta_y_no_pisa_lo_propio()
{
    Sala_Librerias sala;
    const Serie_Librerias& a = Librerias_De(Serie::A);
    const Lista_De_Codigos codigos = Leer_Codigos(*Base_Datos, a, "GEN");
    sala.Escribir("hay.txt", "antes");
    sala.interfaz.respuestas = {false, true, true, true};
    QVERIFY(!Exportar_Libreria(a, codigos, sala.Ruta("hay.txt")));
    QCOMPARE(sala.Leer("hay.txt"), QByteArray("antes"));
    QVERIFY(Exportar_Libreria(a, codigos, sala.Ruta("hay.txt")));
    QCOMPARE(sala.Leer("hay.txt"), QByteArray("001ARBOL\r\n002CASA\r\n003MURO\r\n"));
    sala.Escribir("EstTotal.ini", "KRT=KRT300");
    sala.Tomar_Avisos();
    for (const QString& propio : {sala.Ruta("EstTotal.ini"), Fichero_MDB}) {
        QVERIFY(!Exportar_Libreria(a, codigos, propio));
        QVERIFY(sala.Tomar_Avisos().last().startsWith(
            "Se produjo un error al escribir el fichero\r(75) "));
    }
    QCOMPARE(sala.Leer("EstTotal.ini"), QByteArray("KRT=KRT300"));
    QCOMPARE(sala.Claves(Serie::A).size(), 2);
    QVERIFY(!Exportar_Libreria(a, codigos, sala.Ruta("no/hay/x.txt")));
    QVERIFY(sala.Tomar_Avisos().last().contains("(76) "));
}

void TestFichero_Libreria::importar_crea_pregunta_y_reemplaza()
{
    Sala_Librerias sala;
    const Serie_Librerias& b = Librerias_De(Serie::B);
    sala.Escribir("l.txt", "X,1,C\r\n");
    QVERIFY(Importar_Libreria(b, "NUEVA", "Descrita", sala.Ruta("l.txt")));
    QCOMPARE(sala.Codigos(Serie::B, "NUEVA"), QStringList{"1:X,1,C"});
    QCOMPARE(Buscar_Libreria(*Base_Datos, b, "NUEVA")->descripcion, QString("Descrita"));
    sala.interfaz.respuestas = {false, true};
    QVERIFY(!Importar_Libreria(b, "CAR", "z", sala.Ruta("l.txt")));
    QCOMPARE(sala.Codigos(Serie::B, "CAR").size(), 2);
    QVERIFY(Importar_Libreria(b, "CAR", "z", sala.Ruta("l.txt")));
    QCOMPARE(sala.Codigos(Serie::B, "CAR"), QStringList{"1:X,1,C"});
    QCOMPARE(Buscar_Libreria(*Base_Datos, b, "CAR")->descripcion, QString("z"));
    QCOMPARE(sala.Tomar_Avisos(),
             QStringList(2, "La librería 'CAR' ya existe, ¿ Desea reemplazarla ?"));
}

void TestFichero_Libreria::importar_sin_nombre_no_toca_nada()
{
    Sala_Librerias sala;
    sala.Escribir("l.txt", "001A\r\n");
    const Serie_Librerias& a = Librerias_De(Serie::A);
    QVERIFY(!Importar_Libreria(a, "  ", "x", sala.Ruta("l.txt")));
    QVERIFY(!Importar_Libreria(a, "N", "", sala.Ruta("l.txt")));
    QVERIFY(!Importar_Libreria(a, QString(21, u'N'), "x", sala.Ruta("l.txt")));
    const QStringList avisos = sala.Tomar_Avisos();
    QCOMPARE(avisos.mid(0, 2), (QStringList{a.sin_codigo, a.sin_descripcion}));
    QVERIFY(avisos[2].contains("(3163) "));
    QCOMPARE(sala.Claves(Serie::A).size(), 2);
}

PRUEBA(TestFichero_Libreria)
#include "TestFichero_Libreria.moc"
