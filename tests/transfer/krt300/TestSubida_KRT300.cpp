#include "core/Ayuda.h"
#include "session/Peticiones_Sesion.h"
#include "tests/apoyo/Base_De_Prueba.h"
#include "tests/apoyo/Interfaz_Guion.h"
#include "tests/apoyo/Prueba.h"
#include "tests/apoyo/Puerto_Memoria.h"
#include "transfer/enlace/Envio.h"
#include "transfer/krt300/Subida_KRT300.h"
#include "transfer/Peticiones_Transfer.h"

// The order of an upload: file, separator, offsets, reminder, help, sending dialog.
class TestSubida_KRT300 : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void init();
    void cleanup();
    void los_puntos_por_su_orden();
    void sin_avisos_ni_desplazamientos();
    void la_libreria_no_pide_separador();
    void se_insiste_hasta_que_hay_nombre();
    void cancelar_el_separador_acaba();
    void cancelar_los_desplazamientos_acaba();
    void los_desplazamientos_de_antes_no_cuentan();
    void los_aceptados_se_suman();
    void los_puntos_malos_se_muestran();
    void lo_que_falla_no_llega_al_dialogo();
    void otra_transferencia_en_marcha_manda();

private:
    void Elegir(const QByteArray& fichero)
    {
        base->Escribir("p.asc", fichero);
        interfaz->ficheros.push_back(Fichero_Elegido{base->Ruta("p.asc"), 1});
    }

    std::unique_ptr<Base_De_Prueba> base;
    std::unique_ptr<Interfaz_Guion> interfaz;
    std::unique_ptr<Envio> envio;
    Puerto_Memoria* puerto = nullptr;
    Peticiones_Transfer antes;
    Peticiones_Sesion antes_sesion;
    QStringList pasos;
    QString separador;
    bool acepta = true;
};

void TestSubida_KRT300::init()
{
    base = std::make_unique<Base_De_Prueba>();
    interfaz = std::make_unique<Interfaz_Guion>();
    antes = Peticiones_De_Transfer();
    antes_sesion = Peticiones_De_Sesion();
    pasos.clear();
    separador = ",";
    acepta = true;
    Clave_Estacion = "KRT300";
    Puerto = "COM1";
    Ayuda_Recuerde = Ayuda_Visible = Offset_Cargas = true;
    Peticiones_Transfer& t = Peticiones_De_Transfer();
    t.Ocultar_FrmIni = [this] { pasos << "ocultar"; };
    t.Mostrar_Recordatorio = [this] { pasos << "recuerde"; };
    t.Mostrar_Pasos = [this](const QString& tipo, const QString& ope) {
        pasos << "ayuda " + tipo + ope + " paso " + QString::number(Paso_Ayuda);
    };
    t.Dialogo_Envio = [this] {
        auto p = std::make_unique<Puerto_Memoria>();
        puerto = p.get();
        envio = std::make_unique<Envio>(std::move(p));
        return envio.get();
    };
    t.Mostrar_Envio = [this] { pasos << "envio: " + envio->Etiqueta(); };
    Peticiones_Sesion& s = Peticiones_De_Sesion();
    s.Pedir_Separador = [this] {
        pasos << "separador";
        return separador;
    };
    s.Pedir_Desplazamientos = [this](bool x, bool y, bool z, const QString& formato) {
        pasos << QStringLiteral("desplazar %1%2%3 ").arg(x).arg(y).arg(z) + formato;
        return acepta;
    };
    s.Mostrar_Puntos_Malos = [this](const QString& lista) { pasos << "malos " + lista; };
}

void TestSubida_KRT300::cleanup()
{
    Peticiones_De_Transfer() = antes;
    Peticiones_De_Sesion() = antes_sesion;
    envio.reset();
    interfaz.reset();
    base.reset();
}

void TestSubida_KRT300::los_puntos_por_su_orden()
{
    Paso_Ayuda = 7;
    Elegir("P1,400.456,500.123,10.025,ARB\r\n");
    Subir_Puntos(1);
    QCOMPARE(pasos, QStringList({"ocultar", "separador", "desplazar 111 7,3", "recuerde",
                                 "ayuda C1 paso 1",
                                 "envio: Pulse &Iniciar para comenzar la comunicación ..."}));
    QCOMPARE(interfaz->peticiones.size(), 1);
    QCOMPARE(interfaz->peticiones[0].titulo, QString("Datos de coordenada"));
    QCOMPARE(interfaz->peticiones[0].filtro,
             QString("ASCII (*.asc)|*.asc|Todos los archivos (*.*)|*.*"));
    QCOMPARE(interfaz->peticiones[0].extension, QString("asc"));
    QVERIFY(!interfaz->peticiones[0].guardar);
    envio->BtnIniciar();
    puerto->Llegan("\6\6");
    QVERIFY(puerto->Tomar().contains("\2_+P1        _ x+000500123_ y+000400456_ z+000010025"));
    puerto->Llegan("\6");
    QVERIFY(envio->Resultado().hecho);
}

void TestSubida_KRT300::sin_avisos_ni_desplazamientos()
{
    Ayuda_Recuerde = Ayuda_Visible = Offset_Cargas = false;
    Elegir("P1,1,2,3\r\n");
    Subir_Puntos(1);
    QCOMPARE(pasos.size(), 3);
    QCOMPARE(pasos.first(), QString("ocultar"));
    QVERIFY(pasos.last().startsWith("envio: "));
}

void TestSubida_KRT300::la_libreria_no_pide_separador()
{
    Elegir("001ARBOL\r\n");
    Subir_Libreria(2);
    QCOMPARE(interfaz->peticiones[0].titulo, QString("Librería de Códigos"));
    QCOMPARE(pasos.mid(0, 3), QStringList({"ocultar", "recuerde", "ayuda C2 paso 1"}));
    envio->BtnIniciar();
    // Neither opening nor header.
    QVERIFY(puerto->Tomar().startsWith("\2_:001ARBOL     _:002          "));
}

void TestSubida_KRT300::se_insiste_hasta_que_hay_nombre()
{
    interfaz->ficheros = {std::nullopt, Fichero_Elegido{"", 1}, std::nullopt};
    Elegir("P1,1,2,3\r\n");
    Subir_Puntos(1);
    QCOMPARE(interfaz->peticiones.size(), 4);
    QVERIFY(pasos.last().startsWith("envio: "));
}

void TestSubida_KRT300::cancelar_el_separador_acaba()
{
    separador.clear();
    Elegir("P1,1,2,3\r\n");
    Subir_Puntos(1);
    QCOMPARE(pasos, QStringList({"ocultar", "separador"}));
    QVERIFY(!envio);
}

void TestSubida_KRT300::cancelar_los_desplazamientos_acaba()
{
    acepta = false;
    Elegir("P1,1,2,3\r\n");
    Subir_Puntos(1);
    QCOMPARE(pasos.last(), QString("desplazar 111 7,3"));
    QVERIFY(!envio);
}

// An export may have left its own in force.
void TestSubida_KRT300::los_desplazamientos_de_antes_no_cuentan()
{
    Offset_Cargas = false;
    Desp_X = Desp_Y = Desp_Z = "0009999000";
    Elegir("P1,1,2,3\r\n");
    Subir_Puntos(1);
    QCOMPARE(Desp_X + Desp_Y + Desp_Z, QString("000"));
    envio->BtnIniciar();
    puerto->Llegan("\6\6");
    QVERIFY(puerto->Tomar().contains("_ x+000002000_ y+000001000_ z+000003000"));
}

void TestSubida_KRT300::los_aceptados_se_suman()
{
    Peticiones_De_Sesion().Pedir_Desplazamientos = [](bool, bool, bool, const QString&) {
        Desp_X = "0000010500";
        Desp_Y = "-0000001000";
        return true;
    };
    Elegir("P1,1,2,3\r\n");
    Subir_Puntos(1);
    envio->BtnIniciar();
    puerto->Llegan("\6\6");
    QVERIFY(puerto->Tomar().contains("_ x+000001000_ y+000011500_ z+000003000"));
}

void TestSubida_KRT300::los_puntos_malos_se_muestran()
{
    Elegir("P1,1,2,3\r\nP2,10000000,2,3\r\n");
    Subir_Puntos(1);
    QCOMPARE(pasos.last(), QString("malos P2\00510000000\0052\0053"));
    QVERIFY(!envio);
    QVERIFY(interfaz->avisos.isEmpty());
}

void TestSubida_KRT300::lo_que_falla_no_llega_al_dialogo()
{
    Elegir("P1,1,2,3\r\nP2 1 2 3\r\n");
    Subir_Puntos(1);
    QCOMPARE(interfaz->avisos.size(), 1);
    QCOMPARE(pasos.last(), QString("desplazar 111 7,3"));
    Elegir("001CA\xD1O\r\n");
    Subir_Libreria(2);
    QCOMPARE(interfaz->avisos.size(), 2);
    QVERIFY(!envio);
}

void TestSubida_KRT300::otra_transferencia_en_marcha_manda()
{
    Elegir("P1,1,2,3\r\n");
    Subir_Puntos(1);
    envio->BtnIniciar();
    const Envio* const el_primero = envio.get();
    pasos.clear();
    Elegir("P1,1,2,3\r\n");
    Subir_Puntos(1);
    QCOMPARE(interfaz->pitidos, 1);
    QCOMPARE(envio.get(), el_primero);
    QVERIFY(!pasos.join(' ').contains("envio"));
}

PRUEBA(TestSubida_KRT300)
#include "TestSubida_KRT300.moc"
