#include "core/Ayuda.h"
#include "core/ModEstTotal.h"
#include "tests/apoyo/Base_De_Prueba.h"
#include "tests/apoyo/Interfaz_Guion.h"
#include "tests/apoyo/Prueba.h"

class TestAyuda : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void init();
    void cleanup();
    void los_pasos_son_del_modelo_y_van_por_orden();
    void un_modelo_sin_pasos_avisa();
    void un_texto_largo_se_corta();
    void se_ve_un_paso();
    void tras_el_ultimo_se_acaba();
    void sin_foto_queda_el_texto();
    void la_pagina_se_abre_con_su_coma();

private:
    void Paso_De(const QString& maquina, int sec, const QString& texto, const QString& foto = {});
    std::unique_ptr<Base_De_Prueba> p;
    std::unique_ptr<Interfaz_Guion> interfaz;
};

void TestAyuda::init()
{
    p = std::make_unique<Base_De_Prueba>();
    interfaz = std::make_unique<Interfaz_Guion>();
    Nombre_Estacion = "KRT305";
    Clave_Estacion = "KRT300";
}

void TestAyuda::cleanup()
{
    interfaz.reset();
    p.reset();
}

void TestAyuda::Paso_De(const QString& maquina, int sec, const QString& texto, const QString& foto)
{
    p->Fila("Ayudas", {{"Maquina", maquina},
                       {"OPE", 4},
                       {"TipOpe", "D"},
                       {"Sec", sec},
                       {"Texto", texto},
                       {"Foto", foto}});
}

void TestAyuda::los_pasos_son_del_modelo_y_van_por_orden()
{
    Paso_De("KRT305", 2, "dos");
    Paso_De("KRT305", 1, "uno");
    Paso_De("KRT300", 1, "de la familia");
    Paso_De("KRT310", 1, "de otro");
    const QList<Paso> pasos = Abrir_Pasos("D", "4");
    QCOMPARE(pasos.size(), 2);
    QCOMPARE(pasos[0].texto + pasos[1].texto, QStringLiteral("unodos"));
    QVERIFY(Leer_Pasos("C", "4").isEmpty());
    QVERIFY(Leer_Pasos("D", "5").isEmpty());
    QVERIFY(interfaz->avisos.isEmpty());
}

void TestAyuda::un_modelo_sin_pasos_avisa()
{
    QVERIFY(Abrir_Pasos("D", "4").isEmpty());
    QCOMPARE(interfaz->Textos(),
             QStringList{"No hay ayuda disponible en esta máquina para esta acción"});
    QCOMPARE(interfaz->avisos[0].icono, Icono::Exclamacion);
}

void TestAyuda::un_texto_largo_se_corta()
{
    Paso_De("KRT305", 1, QString(100, u'a'), QString(60, u'f'));
    const QList<Paso> pasos = Leer_Pasos("D", "4");
    QCOMPARE(pasos[0].texto, QString(80, u'a'));
    QCOMPARE(pasos[0].foto, QString(50, u'f'));
}

void TestAyuda::se_ve_un_paso()
{
    p->Escribir("bmphlp/a.png", "x");
    const QList<Paso> pasos{{"  uno ", "a.png"}, {"dos", ""}};
    const Vista_Paso uno = Ver_Paso(pasos, 1);
    QVERIFY(!uno.fin && !uno.atras);
    QCOMPARE(uno.texto, QStringLiteral("uno"));
    QCOMPARE(uno.foto, p->Ruta("bmphlp/a.png"));
    const Vista_Paso dos = Ver_Paso(pasos, 2);
    QVERIFY(!dos.fin && dos.atras);
    QCOMPARE(dos.foto, QString());
}

void TestAyuda::tras_el_ultimo_se_acaba()
{
    QVERIFY(Ver_Paso({{"uno", ""}}, 2).fin);
    QVERIFY(!Ver_Paso({{"uno", ""}}, 1).fin);
    QVERIFY(Ver_Paso({}, 1).fin);
}

void TestAyuda::sin_foto_queda_el_texto()
{
    p->Escribir("bmphlp/vacia.png", "");
    for (const char* foto : {"nada.png", "vacia.png"}) {
        const Vista_Paso v = Ver_Paso({{"uno", QString::fromLatin1(foto)}}, 1);
        QCOMPARE(v.texto, QStringLiteral("uno"));
        QCOMPARE(v.foto, QString());
    }
}

void TestAyuda::la_pagina_se_abre_con_su_coma()
{
    Mostrar_Ayuda_Web("transfer");
    QCOMPARE(interfaz->arrancados, QStringList{Ruta_Aplicacion + "/ayudaweb.exe|" +
                                               Ruta_Aplicacion + "/Ayuda,transfer.htm"});
}

PRUEBA(TestAyuda)
#include "TestAyuda.moc"
