#include "core/ModEstTotal.h"
#include "core/ModLOG.h"
#include "tests/apoyo/Base_De_Prueba.h"
#include "tests/apoyo/Interfaz_Guion.h"
#include "tests/apoyo/Prueba.h"
#include "tests/apoyo/Sin_Privilegios.h"

class TestModLOG : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void init();
    void cleanup();
    void el_nombre_lleva_fecha_y_hora();
    void empieza_con_una_linea_vacia();
    void la_carpeta_que_falta_se_crea();
    void el_segundo_del_minuto_sustituye_al_primero();
    void sin_carpeta_posible_avisa_y_sigue();
    void un_log_de_solo_lectura_avisa_en_cada_linea();
    void los_textos_van_en_su_pagina();
    void el_diario_nunca_falla();
    void el_diario_no_crece_sin_fin();

private:
    std::unique_ptr<Base_De_Prueba> p;
    std::unique_ptr<Interfaz_Guion> interfaz;
};

void TestModLOG::init()
{
    p = std::make_unique<Base_De_Prueba>();
    interfaz = std::make_unique<Interfaz_Guion>();
}

void TestModLOG::cleanup()
{
    interfaz.reset();
    p.reset();
}

void TestModLOG::el_nombre_lleva_fecha_y_hora()
{
    QCOMPARE(Nombre_Log("KRT800", QDateTime(QDate(2026, 3, 7), QTime(9, 5, 59))),
             QStringLiteral("KRT800_070326_0905.LOG"));
}

void TestModLOG::empieza_con_una_linea_vacia()
{
    Iniciar_Log("a.LOG");
    Escribir_Log("a.LOG", "uno");
    Escribir_Log("a.LOG", "");
    QCOMPARE(p->Leer("LOG/a.LOG"), QByteArray("\r\nuno\r\n\r\n"));
    QVERIFY(interfaz->avisos.isEmpty());
}

void TestModLOG::la_carpeta_que_falta_se_crea()
{
    QVERIFY(QDir(p->Ruta("LOG")).removeRecursively());
    Iniciar_Log("a.LOG");
    QCOMPARE(p->Leer("LOG/a.LOG"), QByteArray("\r\n"));
}

void TestModLOG::el_segundo_del_minuto_sustituye_al_primero()
{
    Iniciar_Log("a.LOG");
    Escribir_Log("a.LOG", "primero");
    Iniciar_Log("a.LOG");
    Escribir_Log("a.LOG", "segundo");
    QCOMPARE(p->Leer("LOG/a.LOG"), QByteArray("\r\nsegundo\r\n"));
}

void TestModLOG::sin_carpeta_posible_avisa_y_sigue()
{
    QVERIFY(QDir(p->Ruta("LOG")).removeRecursively());
    p->Escribir("LOG", "no es una carpeta");
    Iniciar_Log("a.LOG");
    QCOMPARE(
        interfaz->Textos(),
        QStringList{"Proceso Miraldos ABORTADO - No se puede crear el Fichero LOG - (75) Error de "
                    "acceso a la ruta o al archivo"});
    QCOMPARE(interfaz->avisos[0].icono, Icono::Critico);
    Escribir_Log("a.LOG", "x");
    QCOMPARE(interfaz->avisos.size(), 2);
}

void TestModLOG::un_log_de_solo_lectura_avisa_en_cada_linea()
{
    Iniciar_Log("a.LOG");
    {
        const Sin_Privilegios s(Ruta_Aplicacion);
        Escribir_Log("a.LOG", "uno");
        Escribir_Log("a.LOG", "dos");
        Iniciar_Log("a.LOG");
    }
    QCOMPARE(interfaz->avisos.size(), 3);
    for (int i : {0, 1})
        QVERIFY(interfaz->Textos()[i].startsWith(
            "Proceso Miraldos ABORTADO - NO SE PUEDE ESCRIBIR EN EL FICHERO LOG - (70) "));
    QVERIFY(interfaz->Textos()[2].startsWith(
        "Proceso Miraldos ABORTADO - No se puede crear el Fichero LOG - (70) "));
    QCOMPARE(p->Leer("LOG/a.LOG"), QByteArray("\r\n"));
}

void TestModLOG::los_textos_van_en_su_pagina()
{
    Iniciar_Log("a.LOG");
    Escribir_Log("a.LOG", QString::fromUtf8("ñ\u0006Ж"));
    QCOMPARE(p->Leer("LOG/a.LOG"), QByteArray("\r\n\xF1\x06?\r\n"));
}

void TestModLOG::el_diario_nunca_falla()
{
    Anotar("Aqui", "uno");
    QVERIFY(p->Leer("LOG/Miraldos.log").endsWith(" Aqui: uno\r\n"));
    {
        const Sin_Privilegios s(Ruta_Aplicacion);
        Anotar("Aqui", "dos");
    }
    const QString ruta = std::exchange(Ruta_Aplicacion, QString());
    Anotar("Aqui", "tres");
    Ruta_Aplicacion = ruta;
    QCOMPARE(p->Leer("LOG/Miraldos.log").count("\r\n"), 1);
    QVERIFY(interfaz->avisos.isEmpty());
}

void TestModLOG::el_diario_no_crece_sin_fin()
{
    p->Escribir("LOG/Miraldos.log", QByteArray(1024 * 1024 + 1, 'x'));
    Anotar("Aqui", "nuevo");
    QVERIFY(p->Leer("LOG/Miraldos.log").size() < 100);
    QCOMPARE(p->Leer("LOG/Miraldos.log.1").size(), 1024 * 1024 + 1);
}

PRUEBA(TestModLOG)
#include "TestModLOG.moc"
