#include "codes/Codigos.h"
#include "core/Trozos.h"
#include "tests/apoyo/Prueba.h"

class TestCodigos : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void la_lista_guardada_data();
    void la_lista_guardada();
    void el_primer_caracter_malo_data();
    void el_primer_caracter_malo();
    void motivo_de_cada_serie_data();
    void motivo_de_cada_serie();
    void ordenar_respeta_lo_igual();
    void buscar_da_la_vuelta();
};

void TestCodigos::la_lista_guardada_data()
{
    QTest::addColumn<QString>("guardada");
    QTest::addColumn<QStringList>("codigos");
    QTest::addColumn<QString>("vuelta");
    QTest::newRow("vacía") << "" << QStringList{} << "";
    QTest::newRow("uno") << "|A" << QStringList{"A"} << "|A";
    QTest::newRow("hueco en medio") << "|A||C" << QStringList{"A", "", "C"} << "|A||C";
    QTest::newRow("relleno al final") << "|A|B||   |" << QStringList{"A", "B"} << "|A|B";
    QTest::newRow("sólo relleno") << "||||" << QStringList{} << "";
    // Written by other hands: no code is lost for want of the first, empty item.
    QTest::newRow("sin el primero vacío") << "A|B" << QStringList{"A", "B"} << "|A|B";
}

void TestCodigos::la_lista_guardada()
{
    QFETCH(QString, guardada);
    QFETCH(QStringList, codigos);
    QFETCH(QString, vuelta);
    const auto con = [](QString t) { return t.replace(u'|', QChar(SEP_LISTA)); };
    QCOMPARE(Separar_Codigos(con(guardada)), codigos);
    QCOMPARE(Unir_Codigos(codigos), con(vuelta));
    QCOMPARE(Separar_Codigos(Unir_Codigos(codigos)), codigos);
}

void TestCodigos::el_primer_caracter_malo_data()
{
    QTest::addColumn<QString>("texto");
    QTest::addColumn<QString>("malo");
    QTest::newRow("ninguno") << " AZ az09~"
                             << "";
    QTest::newRow("vacío") << ""
                           << "";
    QTest::newRow("eñe") << "SEÑAL_"
                         << "Ñ";
    QTest::newRow("31") << QString(QChar(31)) << QString(QChar(31));
    QTest::newRow("127") << QString("A") + QChar(127) << QString(QChar(127));
    QTest::newRow("fuera de la página") << "A≥B"
                                        << "≥";
    QTest::newRow("par") << QString::fromUtf8("A\xF0\x9F\x98\x80")
                         << QString::fromUtf8("\xF0\x9F\x98\x80");
    QTest::newRow("tabulador") << "A\tB"
                               << "\t";
}

void TestCodigos::el_primer_caracter_malo()
{
    QFETCH(QString, texto);
    QFETCH(QString, malo);
    QCOMPARE(Caracter_No_Aceptado(texto), malo);
}

void TestCodigos::motivo_de_cada_serie_data()
{
    QTest::addColumn<QString>("serie");
    QTest::addColumn<QString>("codigo");
    QTest::addColumn<int>("entidad");
    QTest::addColumn<QString>("capa");
    QTest::addColumn<QString>("motivo");
    const QString largo(21, u'X'), muy_largo(51, u'X');
    QTest::newRow("A bueno") << "A"
                             << "ARBOL" << 0 << ""
                             << "";
    QTest::newRow("A con coma") << "A"
                                << "A,B" << 0 << ""
                                << "";
    QTest::newRow("A vacío es un hueco") << "A"
                                         << "" << 0 << ""
                                         << "";
    QTest::newRow("A reservado") << "A"
                                 << "A_B" << 0 << ""
                                 << "El carácter '_' es reservado";
    QTest::newRow("A eñe antes que reservado") << "A"
                                               << "_Ñ" << 0 << ""
                                               << "El carácter 'Ñ' no es aceptado por el aparato";
    QTest::newRow("A de once") << "A"
                               << "12345678901" << 0 << ""
                               << "El código '12345678901' tiene más de 10 caracteres";
    QTest::newRow("B bueno") << "B"
                             << "A_B" << 2 << "CAPA"
                             << "";
    QTest::newRow("B sin capa") << "B"
                                << "A" << 2 << ""
                                << "";
    QTest::newRow("B con coma") << "B"
                                << "A,B" << 2 << ""
                                << "El carácter ',' es reservado";
    QTest::newRow("B coma en la capa") << "B"
                                       << "A" << 2 << "x,y"
                                       << "El carácter ',' es reservado";
    QTest::newRow("B capa con eñe") << "B"
                                    << "A" << 2 << "AÑO"
                                    << "El carácter 'Ñ' no es aceptado por el aparato";
    QTest::newRow("B vacío") << "B"
                             << "" << 2 << "CAPA"
                             << "El código no se puede dejar en blanco";
    QTest::newRow("B entidad ajena") << "B"
                                     << "A" << 3 << ""
                                     << "No existe la entidad 3";
    QTest::newRow("B largo") << "B" << largo << 2 << ""
                             << "El código '" + largo + "' tiene más de 20 caracteres";
    QTest::newRow("B capa larga") << "B"
                                  << "A" << 2 << muy_largo
                                  << "La capa '" + muy_largo + "' tiene más de 50 caracteres";
}

void TestCodigos::motivo_de_cada_serie()
{
    QFETCH(QString, serie);
    QFETCH(QString, codigo);
    QFETCH(int, entidad);
    QFETCH(QString, capa);
    QFETCH(QString, motivo);
    const QList<Entidad> entidades = {{1, "Punto"}, {2, "Línea"}};
    const Serie_Librerias& fila = Librerias_De(serie == u"A" ? Serie::A : Serie::B);
    QCOMPARE(fila.letra, serie);
    QCOMPARE(Motivo_De_Codigo(fila, {codigo, entidad, capa}, entidades), motivo);
}

void TestCodigos::ordenar_respeta_lo_igual()
{
    Lista_De_Codigos lista = {
        {"muro", 1, ""}, {"", 0, ""}, {"Casa", 1, "x"}, {"MURO", 2, ""}, {"casa", 2, ""}};
    Ordenar_Codigos(lista);
    QCOMPARE(Solo_Codigos(lista), (QStringList{"Casa", "casa", "muro", "MURO", ""}));
    QCOMPARE(lista[0].capa, QString("x"));
}

void TestCodigos::buscar_da_la_vuelta()
{
    const Lista_De_Codigos lista = Como_Libreria({"ARBOL", "MURO", "CASA", "MUROS"});
    QCOMPARE(Buscar_Codigo(lista, "muro", 0), 1);
    QCOMPARE(Buscar_Codigo(lista, "muro", 2), 3);
    QCOMPARE(Buscar_Codigo(lista, "muro", 4), 1);
    QCOMPARE(Buscar_Codigo(lista, "bol", 3), 0);
    QCOMPARE(Buscar_Codigo(lista, "nada", 0), -1);
    QCOMPARE(Buscar_Codigo({}, "a", 0), -1);
}

PRUEBA(TestCodigos)
#include "TestCodigos.moc"
