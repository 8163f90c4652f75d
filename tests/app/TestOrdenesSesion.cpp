#include "app/cli/Ordenes.h"
#include "core/Ansi.h"
#include "export/excel/Fichero_Excel.h"
#include "tests/apoyo/Base_De_Prueba.h"
#include "tests/apoyo/Instrumentos.h"
#include "tests/apoyo/Nivel_De_Prueba.h"
#include "tests/apoyo/Prueba.h"

#include <QBuffer>

// The orders over sessions and formats, run in this process on an installation of the tests' own.
class TestOrdenesSesion : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void init();
    void cleanup();
    void las_listas_tienen_sus_columnas();
    void las_sesiones_van_de_la_ultima_a_la_primera();
    void ver_ensena_las_lineas_y_sus_uniones();
    void ver_campos_ensena_lo_que_el_visor();
    void exportar_escribe_el_texto_data();
    void exportar_escribe_el_texto();
    void exportar_escribe_libros_y_bases();
    void exportar_toma_los_titulos_del_formato();
    void el_nivel_se_formatea_y_se_exporta();
    void exportar_pregunta_antes_de_pisar();
    void exportar_dice_que_falta_data();
    void exportar_dice_que_falta();
    void un_formato_se_crea_y_se_borra();
    void un_formato_con_apostrofo_no_tapa_los_demas();
    void un_formato_repetido_no_se_guarda();
    void borrar_quita_la_sesion_con_permiso();
    void compactar_deja_su_copia();
    void recuperar_funciona_con_la_base_danada();
    void un_ini_que_falta_se_dice();

private:
    int Correr(const QStringList& palabras);
    QStringList Lineas() const
    {
        return QString::fromUtf8(salida).split(u'\n', Qt::SkipEmptyParts);
    }

    std::unique_ptr<Base_De_Prueba> base;
    QByteArray salida, errores;
};

void TestOrdenesSesion::init()
{
    base = std::make_unique<Base_De_Prueba>();
    Poner_Instrumentos(*base);
    base->Escribir("EstTotal.ini", "KRTNOM=KRT300-1\r\nKRT=KRT300\r\nFIJO=True\r\n");
    const QStringList campos = {"Punto", "Coordenada X", "Coordenada Y", "Coordenada Z"};
    base->Fila("Formatos1", {{"Nombre", "NXYZ"},
                             {"Maquina", "KRT300"},
                             {"cabeceras", "NO"},
                             {"Modificable", "SI"},
                             {"ope", 1},
                             {"Ids", "x y z "}});
    for (qsizetype i = 0; i < campos.size(); ++i)
        base->Fila("Formatos2",
                   {{"Nombre", "NXYZ"}, {"Maquina", "KRT300"}, {"sec", i}, {"Campo", campos[i]}});
    Poner_Sesion(*base, 1, "KRT300", 1,
                 {{"P1", " x+001234567"},
                  {"P1", " y-000000500"},
                  {"P1", " z+000010250"},
                  {"A`P20", " x+000001000", "EE1|x"},
                  {"A`P20", " y+000002000"}});
    Poner_Sesion(*base, 2, "KRT300", 1, {});
}

void TestOrdenesSesion::cleanup()
{
    base.reset();
}

int TestOrdenesSesion::Correr(const QStringList& palabras)
{
    QBuffer s, e;
    s.open(QIODevice::WriteOnly);
    e.open(QIODevice::WriteOnly);
    Contexto c;
    c.dir = Ruta_Aplicacion;
    c.salida = &s;
    c.errores = &e;
    const int estado = Ejecutar_Orden(c, palabras);
    salida = s.data();
    errores = e.data();
    return estado;
}

void TestOrdenesSesion::las_listas_tienen_sus_columnas()
{
    QCOMPARE(Correr({"modelos"}), int(HECHO));
    QCOMPARE(Lineas().size(), 5);
    QCOMPARE(Lineas().mid(0, 2),
             (QStringList{"Nombre\tClave\tVelocidades", "KRT300-1\tKRT300\t1200,9600"}));
    QCOMPARE(Correr({"operaciones", "--modelo", "KRT300-1"}), int(HECHO));
    QCOMPARE(Lineas(), (QStringList{"OPE\tTipOpe\tDESOPE", "0\tD\tDatos de medición",
                                    "1\tD\tDatos de coordenadas", "1\tC\tDatos de coordenadas",
                                    "2\tC\tLibrería de códigos"}));
    QCOMPARE(Correr({"operaciones", "--modelo", "Nadie"}), int(RECHAZADO));
    QVERIFY(errores.contains("No existe el modelo Nadie"));
    QCOMPARE(Correr({"formatos", "--maquina", "KRT300"}), int(HECHO));
    QCOMPARE(Lineas(),
             (QStringList{"Nombre\tMaquina\tOPE\tModificable\tCampos",
                          "NXYZ\tKRT300\t1\tSI\tPunto,Coordenada X,Coordenada Y,Coordenada Z"}));
    QCOMPARE(Correr({"formatos", "--maquina", "OTRA"}), int(RECHAZADO));
    QCOMPARE(Correr({"formatos", "--maquina"}), int(MAL_USO));
}

void TestOrdenesSesion::las_sesiones_van_de_la_ultima_a_la_primera()
{
    QCOMPARE(Correr({"sesiones"}), int(HECHO));
    const QStringList lineas = Lineas();
    QCOMPARE(lineas[0],
             QString("Id\tFecha\tHora\tOPE\tTipo Fichero\tNombre de Sesión\tAparato\tNº Puntos"));
    QCOMPARE(lineas.size(), 3);
    QVERIFY(lineas[1].startsWith("2\t"));
    QVERIFY(lineas[2].startsWith("1\t"));
    QCOMPARE(lineas[2].section(u'\t', 3, 4), QString("1\tDatos de coordenadas"));
    Correr({"sesiones", "--maquina", "NV400"});
    QCOMPARE(Lineas().size(), 1);
}

void TestOrdenesSesion::ver_ensena_las_lineas_y_sus_uniones()
{
    Base_Datos->Execute("UPDATE Registros SET DatosG = ? WHERE Secuencia = 1",
                        {QString("Ea") + QChar(6) + "b" + QChar(5) + "c"});
    QCOMPARE(Correr({"ver", "1"}), int(HECHO));
    QCOMPARE(Lineas().mid(0, 2),
             (QStringList{"Secuencia\tPunto\tDatos\tDatosG", "1\tP1\t x+001234567\tEa|b=c"}));
    QCOMPARE(Lineas().size(), 6);
    QCOMPARE(Correr({"ver", "99"}), int(RECHAZADO));
    QVERIFY(errores.contains("No existe la sesión 99"));
    QCOMPARE(Correr({"ver", "uno"}), int(MAL_USO));
}

void TestOrdenesSesion::ver_campos_ensena_lo_que_el_visor()
{
    Desp_X = "5";
    QCOMPARE(Correr({"ver", "1", "--campos"}), int(HECHO));
    QCOMPARE(Lineas().mid(0, 4),
             (QStringList{"Secuencia\tPunto\tCampo\tValor", "1\tP1\tCoordenada Y\t1234.567",
                          "2\tP1\tCoordenada X\t-0.500", "3\tP1\tCoordenada Z\t10.250"}));
}

void TestOrdenesSesion::exportar_escribe_el_texto_data()
{
    QTest::addColumn<QStringList>("opciones");
    QTest::addColumn<QByteArray>("bytes");
    QTest::newRow("alineado")
        << QStringList{"--tipo", "txf"}
        << QByteArray("P1  -0.500 1234.567 10.250\r\nP20 2.000  1.000          \r\n");
    QTest::newRow("el tipo, con mayúsculas")
        << QStringList{"--tipo", "Txt", "--separador", "coma"}
        << QByteArray("P1 ,-0.500,1234.567,10.250\r\nP20,2.000 ,1.000   \r\n");
    QTest::newRow("titulos, coma")
        << QStringList{"--tipo", "txf", "--titulos", "si", "--separador", "coma"}
        << QByteArray("Punto,Coordenada X,Coordenada Y,Coordenada Z\r\n\r\n"
                      "P1   ,-0.500      ,1234.567    ,10.250      \r\n"
                      "P20  ,2.000       ,1.000       ,            \r\n");
    QTest::newRow("separado") << QStringList{"--tipo", "txt", "--separador", "tabulacion"}
                              << QByteArray(
                                     "P1 \t-0.500\t1234.567\t10.250\r\nP20\t2.000 \t1.000   \r\n");
    QTest::newRow("desplazado") << QStringList{"--tipo", "txt", "--desplazamiento", "100.5,-2,0"}
                                << QByteArray(
                                       "P1  100.000 1232.567 10.250\r\nP20 102.500 -1.000  \r\n");
}

void TestOrdenesSesion::exportar_escribe_el_texto()
{
    QFETCH(QStringList, opciones);
    QFETCH(QByteArray, bytes);
    QCOMPARE(
        Correr(QStringList{"exportar", "1", "--formato", "NXYZ", "--salida", base->Ruta("s.txt")} +
               opciones),
        int(HECHO));
    QCOMPARE(base->Leer("s.txt"), bytes);
}

void TestOrdenesSesion::exportar_escribe_libros_y_bases()
{
    QVERIFY(QFile::copy(INSTALACION "/DAT/plantilla.xls", base->Ruta("DAT/plantilla.xls")));
    const QStringList orden{"exportar", "1", "--formato", "NXYZ"};
    QCOMPARE(Correr(orden + QStringList{"--tipo", "xls", "--salida", base->Ruta("s.xls"),
                                        "--numeros", "--titulos", "si", "--version", "Excel 95"}),
             int(HECHO));
    const Libro_Excel libro = Abrir_Libro(base->Ruta("s.xls"));
    QCOMPARE(libro.Hoja(0).Leer(1, 3).texto, QString("Coordenada Z"));
    QCOMPARE(libro.Hoja(0).Leer(3, 2), [] {
        Celda c = Celda::De(1234.567);
        c.decimales = 3;
        return c;
    }());
    QCOMPARE(libro.Hoja(0).Leer(4, 0).texto, QString("P20"));
    // What the order was told is no choice of the dialog.
    QVERIFY(!base->Leer("Posicion.ini").contains("numeros"));
    QCOMPARE(Correr(orden + QStringList{"--tipo", "mdb", "--salida", base->Ruta("s.mdb")}),
             int(HECHO));
    QVERIFY(base->Leer("s.mdb").contains("Standard Jet DB"));
}

void TestOrdenesSesion::exportar_toma_los_titulos_del_formato()
{
    Base_Datos->Execute("UPDATE Formatos1 SET cabeceras = 'SI'");
    const QStringList orden{"--si",   "exportar", "1",        "--formato",        "NXYZ",
                            "--tipo", "txf",      "--salida", base->Ruta("s.txt")};
    QCOMPARE(Correr(orden), int(HECHO));
    QVERIFY(base->Leer("s.txt").startsWith("Punto Coordenada X"));
    QCOMPARE(Correr(orden + QStringList{"--titulos", "no"}), int(HECHO));
    QVERIFY(base->Leer("s.txt").startsWith("P1 "));
}

void TestOrdenesSesion::el_nivel_se_formatea_y_se_exporta()
{
    Base_Datos->Execute("DELETE FROM Campos WHERE Maquina = 'NV400'");
    Nivel_De_Prueba::Poner_Campos(*base);
    Nivel_De_Prueba::Poner_Sesion(*base, 3, Nivel_De_Prueba::Libreta("campo_nv400.txt"));
    const QStringList nuevo{"formato-nuevo", "--maquina", "NV400", "--ope", "0", "--nombre", "Mío"};
    QCOMPARE(Correr(nuevo +
                    QStringList{"--cabecera", "Trabajo, Fecha", "--campos", "Punto,Cota,Trabajo"}),
             int(RECHAZADO));
    QVERIFY(errores.contains("El campo \"Trabajo\" no está disponible; los hay: Tipo, Lectura"));
    QCOMPARE(Correr(nuevo), int(MAL_USO));
    QCOMPARE(Correr(nuevo + QStringList{"--cabecera", "Trabajo, Fecha", "--campos", "Punto,Cota",
                                        "--descripcion", "Cotas", "--titulos"}),
             int(HECHO));
    // An order closes the database behind it.
    Base_Datos = Base::Abrir(base->Ruta("MDB/EstTotal.mdb"));
    QCOMPARE(base->Columna("SELECT descripcion FROM Formatos1 WHERE Nombre = 'Mío'"),
             QStringList{"Cotas"});
    QCOMPARE(Correr(nuevo + QStringList{"--campos", "Punto"}), int(RECHAZADO));
    QVERIFY(errores.contains("(3022)"));

    const QStringList exportar{"--si",   "exportar", "3",        "--formato",         "Mío",
                               "--tipo", "txt",      "--salida", base->Ruta("s.txt"), "--separador",
                               "coma"};
    QCOMPARE(Correr(exportar + QStringList{"--nivelacion"}), int(HECHO));
    const QString texto = Ansi::A_Texto(base->Leer("s.txt"));
    QVERIFY2(texto.startsWith("Trabajo         ,Fecha   \r\nANILLO A        ,12/03/24\r\n\r\n"
                              "   Punto,       Cota\r\n\r\n     RN1,   612.3456\r\n"),
             qPrintable(texto));
    QVERIFY(texto.contains("CIERRE") && !texto.contains("P.Cambio"));
    QCOMPARE(Correr(exportar + QStringList{"--anillo", "--titulos", "no"}), int(HECHO));
    QVERIFY(base->Leer("s.txt").startsWith("ANILLO A"));
    QVERIFY(base->Leer("s.txt").contains("P.Cambio"));
}

void TestOrdenesSesion::exportar_pregunta_antes_de_pisar()
{
    const QStringList orden{"exportar", "1",   "--formato", "NXYZ",
                            "--tipo",   "txf", "--salida",  base->Ruta("s.txt")};
    base->Escribir("s.txt", "mio");
    QCOMPARE(Correr(orden), int(RECHAZADO));
    QCOMPARE(base->Leer("s.txt"), QByteArray("mio"));
    QVERIFY(errores.contains("El fichero ya existe, ¿ Desea reemplazarlo?"));
    QCOMPARE(Correr(orden + QStringList{"--si"}), int(HECHO));
    QVERIFY(base->Leer("s.txt").startsWith("P1"));
}

void TestOrdenesSesion::exportar_dice_que_falta_data()
{
    QTest::addColumn<QStringList>("palabras");
    QTest::addColumn<int>("estado");
    QTest::addColumn<QString>("dice");
    const auto con = [](const QString& id, const QString& formato, const QString& tipo) {
        return QStringList{"exportar", id,   "--formato", formato,
                           "--tipo",   tipo, "--salida",  "s.txt"};
    };
    QTest::newRow("formato") << con("1", "NADA", "txf") << int(RECHAZADO)
                             << "No existe el formato NADA para la sesión; los hay: NXYZ, CERRADO";
    QTest::newRow("sesion") << con("7", "NXYZ", "txf") << int(RECHAZADO) << "No existe la sesión 7";
    QTest::newRow("vacia") << con("2", "NXYZ", "txf") << int(RECHAZADO)
                           << "No hay datos disponibles!!!";
    QTest::newRow("nivel") << con("3", "NXYZ", "txf") << int(RECHAZADO)
                           << "No hay formatos disponibles";
    QTest::newRow("anillo de otra familia")
        << con("1", "NXYZ", "txf") + QStringList{"--anillo"} << int(MAL_USO)
        << "Las opciones --anillo y --nivelacion son de las sesiones del nivel";
    QTest::newRow("tipo") << con("1", "NXYZ", "pdf") << int(MAL_USO)
                          << "El tipo es txf, txt, xls o mdb: pdf";
    QTest::newRow("version de un texto")
        << con("1", "NXYZ", "txf") + QStringList{"--version", "Excel 97"} << int(MAL_USO)
        << "La opción --version no vale para el tipo txf";
    QTest::newRow("numeros de una base")
        << con("1", "NXYZ", "mdb") + QStringList{"--numeros"} << int(MAL_USO)
        << "La opción --numeros no vale para el tipo mdb";
    QTest::newRow("separador de un libro")
        << con("1", "NXYZ", "xls") + QStringList{"--separador", "coma"} << int(MAL_USO)
        << "La opción --separador no vale para el tipo xls";
    QTest::newRow("version que no hay")
        << con("1", "NXYZ", "xls") + QStringList{"--version", "Excel 2000"} << int(MAL_USO)
        << "La versión es Excel 3.0, Excel 4.0, Excel 95 o Excel 97: Excel 2000";
    QTest::newRow("titulos a medias") << con("1", "NXYZ", "txf") + QStringList{"--titulos", "quiza"}
                                      << int(MAL_USO) << "La opción --titulos es si o no: quiza";
    QTest::newRow("titulos de uno cerrado")
        << con("1", "CERRADO", "txf") + QStringList{"--titulos", "si"} << int(RECHAZADO)
        << "El formato CERRADO no es modificable: sus títulos no se cambian";
    QTest::newRow("separador") << con("1", "NXYZ", "txf") + QStringList{"--separador", "raya"}
                               << int(MAL_USO)
                               << "El separador es espacio, coma o tabulacion: raya";
    QTest::newRow("desplazamiento")
        << con("1", "NXYZ", "txf") + QStringList{"--desplazamiento", "1,2"} << int(MAL_USO)
        << "El desplazamiento se escribe X,Y,Z: 1,2";
    QTest::newRow("letras") << con("1", "NXYZ", "txf") + QStringList{"--desplazamiento", "1,a,2"}
                            << int(MAL_USO) << "El desplazamiento \"a\" no es un número";
    QTest::newRow("carpeta")
        << QStringList{"exportar", "1",   "--formato", "NXYZ",
                       "--tipo",   "txf", "--salida",  "/no/existe/s.txt"}
        << int(RECHAZADO) << "Se produjo un error al Guardar un Fichero de Texto formateado\n(76)";
}

void TestOrdenesSesion::exportar_dice_que_falta()
{
    QFETCH(QStringList, palabras);
    QFETCH(int, estado);
    QFETCH(QString, dice);
    Poner_Sesion(*base, 3, "NV400", 0, {{" ", "g,01,A,"}});
    base->Fila("Formatos1", {{"Nombre", "CERRADO"},
                             {"Maquina", "KRT300"},
                             {"cabeceras", "NO"},
                             {"Modificable", "NO"},
                             {"ope", 1},
                             {"Ids", "x "}});
    QCOMPARE(Correr(palabras), estado);
    QVERIFY2(QString::fromUtf8(errores).contains(dice), errores.constData());
    QVERIFY(salida.isEmpty());
}

void TestOrdenesSesion::un_formato_se_crea_y_se_borra()
{
    const QStringList nuevo{
        "formato-nuevo", "--maquina",           "KRT300",   "--ope", "1", "--nombre", "Mío",
        "--campos",      "Punto, Coordenada Z", "--titulos"};
    QCOMPARE(Correr(nuevo), int(HECHO));
    Correr({"formatos", "--maquina", "KRT300"});
    QVERIFY(Lineas().contains("Mío\tKRT300\t1\tSI\tPunto,Coordenada Z"));
    QCOMPARE(Correr({"formato-borrar", "--maquina", "KRT300", "--nombre", "Mío"}), int(RECHAZADO));
    QCOMPARE(Correr({"formato-borrar", "--maquina", "KRT300", "--nombre", "Mío", "--si"}),
             int(HECHO));
    QCOMPARE(Correr({"formato-borrar", "--maquina", "KRT300", "--nombre", "Mío", "--si"}),
             int(RECHAZADO));
    QCOMPARE(Correr(nuevo.first(7) + QStringList{"--nombre", "Otro", "--campos", "Punto,Nada"}),
             int(MAL_USO));
    QCOMPARE(Correr({"formato-nuevo", "--maquina", "KRT300", "--ope", "1", "--nombre", "Otro",
                     "--campos", "Punto,Nada"}),
             int(RECHAZADO));
    QVERIFY(errores.contains("El campo \"Nada\" no está disponible"));
    Correr({"formatos", "--maquina", "KRT300"});
    QCOMPARE(Lineas().size(), 2);
}

void TestOrdenesSesion::un_formato_con_apostrofo_no_tapa_los_demas()
{
    base->Fila("Formatos1", {{"Nombre", "D'Or"},
                             {"Maquina", "KRT300"},
                             {"cabeceras", "NO"},
                             {"Modificable", "SI"},
                             {"ope", 1},
                             {"Ids", "x "}});
    base->Fila("Formatos1", {{"Nombre", "Z"},
                             {"Maquina", "KRT300"},
                             {"cabeceras", "NO"},
                             {"Modificable", "NO"},
                             {"ope", 1},
                             {"Ids", "x "}});
    QCOMPARE(Correr({"formatos", "--maquina", "KRT300"}), int(HECHO));
    QCOMPARE(Lineas().mid(2), (QStringList{"D'Or\tKRT300\t1\tSI\t", "Z\tKRT300\t1\tNO\t"}));
    QVERIFY2(errores.startsWith("D'Or: "), errores.constData());
}

void TestOrdenesSesion::un_formato_repetido_no_se_guarda()
{
    QCOMPARE(Correr({"formato-nuevo", "--maquina", "KRT300", "--ope", "1", "--nombre", "NXYZ",
                     "--campos", "Punto"}),
             int(RECHAZADO));
    QVERIFY2(errores.contains("(3022)"), errores.constData());
    Correr({"formatos", "--maquina", "KRT300"});
    QVERIFY(Lineas().last().endsWith("Punto,Coordenada X,Coordenada Y,Coordenada Z"));
}

void TestOrdenesSesion::borrar_quita_la_sesion_con_permiso()
{
    QCOMPARE(Correr({"borrar", "1"}), int(RECHAZADO));
    QVERIFY(errores.contains("Desea Eliminar la Descarga ?"));
    QCOMPARE(Correr({"--si", "borrar", "1"}), int(HECHO));
    QCOMPARE(Correr({"borrar", "1", "--si"}), int(RECHAZADO));
    Correr({"sesiones"});
    QCOMPARE(Lineas().size(), 2);
}

void TestOrdenesSesion::compactar_deja_su_copia()
{
    Base_Datos.reset();
    QCOMPARE(Correr({"compactar"}), int(HECHO));
    QVERIFY(QFile::exists(base->Ruta("MDB/esttotal.bak")));
    QCOMPARE(Correr({"sesiones"}), int(HECHO));
    QCOMPARE(Lineas().size(), 3);
}

void TestOrdenesSesion::recuperar_funciona_con_la_base_danada()
{
    Base_Datos.reset();
    QCOMPARE(Correr({"recuperar"}), int(RECHAZADO));
    QVERIFY(errores.contains("No hay ninguna copia"));
    QCOMPARE(Correr({"compactar"}), int(HECHO));
    base->Escribir("MDB/EstTotal.mdb", QByteArray("rota").repeated(3000));
    QCOMPARE(Correr({"sesiones"}), int(RECHAZADO));
    QVERIFY(errores.contains("La base de datos está dañada"));
    QVERIFY(errores.contains("(3343)"));
    QCOMPARE(Correr({"base"}), int(HECHO));
    QCOMPARE(Lineas()[0], "Base de datos: " + Fichero_MDB);
    QCOMPARE(Lineas().size(), 4);
    QVERIFY(Lineas()[2].endsWith("\tsana"));
    base->Escribir("mala.bak", "rota");
    QCOMPARE(Correr({"recuperar", base->Ruta("mala.bak")}), int(RECHAZADO));
    QVERIFY(errores.contains("(3343)"));
    QCOMPARE(Correr({"recuperar", base->Ruta("nada.bak")}), int(RECHAZADO));
    QCOMPARE(Correr({"recuperar", "a", "b"}), int(MAL_USO));
    QCOMPARE(Correr({"recuperar"}), int(HECHO));
    QCOMPARE(Lineas().size(), 2);
    QVERIFY(QFile::exists(Lineas()[1].mid(int(qstrlen("La de antes: ")))));
    QCOMPARE(Correr({"sesiones"}), int(HECHO));
    QCOMPARE(Lineas().size(), 3);
}

void TestOrdenesSesion::un_ini_que_falta_se_dice()
{
    QFile::remove(base->Ruta("EstTotal.ini"));
    QCOMPARE(Correr({"sesiones"}), int(RECHAZADO));
    QVERIFY(errores.startsWith("Se Produjo un error al leer el Fichero .ini EstTotal.ini\n(53) "));
    QVERIFY(salida.isEmpty());
}

PRUEBA(TestOrdenesSesion)
#include "TestOrdenesSesion.moc"
