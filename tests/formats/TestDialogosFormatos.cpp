#include "core/Perfil.h"
#include "core/Posicion.h"
#include "formats/Formato_Existente_Nivel.h"
#include "formats/Formato_Nuevo_Nivel.h"
#include "formats/Mantenimiento_Formatos.h"
#include "session/Peticiones_Sesion.h"
#include "tests/apoyo/Instrumentos.h"
#include "tests/apoyo/Interfaz_Guion.h"
#include "tests/apoyo/Nivel_De_Prueba.h"
#include "tests/apoyo/Prueba.h"

namespace {

// A room with instruments, two formats and a session, and requests that only take note.
struct Escena {
    Base_De_Prueba p;
    Interfaz_Guion guion;
    QStringList hechos;
    Peticiones_Sesion de_sesion = Peticiones_De_Sesion();
    Peticiones_Formatos de_formatos = Peticiones_De_Formatos();
    bool acepta_desplazamientos = true;
    const Sesion_Elegida sesion{1, "KRT300", 1, "Datos de coordenadas"};

    Escena()
    {
        Poner_Instrumentos(p);
        Clave_Estacion = "KRT300";
        Poner_Sesion(
            p, 1, "KRT300", 1,
            {{"1", " y+001000000"}, {"1", " x+002000000"}, {"1", "cARB"}, {"2", " y+003000000"}});
        Poner_Formato("NXYZ", "NO", "SI", "x y ", {"Punto", "Coordenada X", "Coordenada Y"});
        Poner_Formato("CODIGOS", "SI", "NO", "c", {"Punto", "Código"});
        Poner_Formato("RAROS", "SI", "NO", "c Q", {"Inventado"});
        Peticiones_De_Sesion().Pedir_Desplazamientos = [this](bool x, bool y, bool z,
                                                              const QString& f) {
            hechos << QString("desplazar %1%2%3 %4 desde %5")
                          .arg(int(x))
                          .arg(int(y))
                          .arg(int(z))
                          .arg(f, Desp_X);
            return acepta_desplazamientos;
        };
        const auto anotar = [this](const char* que) {
            return [this, que](const Trabajo_Exportar& t) {
                hechos << QString("%1 %2 %3 %4 %5")
                              .arg(que)
                              .arg(t.id)
                              .arg(t.maquina)
                              .arg(t.ope)
                              .arg(t.formato);
            };
        };
        Peticiones_De_Formatos().Abrir_Exportar = anotar("exportar");
        Peticiones_De_Formatos().Abrir_Imprimir = anotar("imprimir");
    }
    ~Escena()
    {
        Peticiones_De_Sesion() = de_sesion;
        Peticiones_De_Formatos() = de_formatos;
    }
    Escena(const Escena&) = delete;
    Escena& operator=(const Escena&) = delete;

    void Poner_Formato(const char* nombre, const char* modificable, const char* cabeceras,
                       const char* ids, const QStringList& campos) const
    {
        p.Fila("Formatos1", {{"Nombre", nombre},
                             {"Maquina", "KRT300"},
                             {"descripcion", QString("Formato ") + nombre},
                             {"cabeceras", cabeceras},
                             {"Modificable", modificable},
                             {"ope", 1},
                             {"Ids", ids}});
        for (qsizetype i = 0; i < campos.size(); ++i)
            p.Fila("Formatos2",
                   {{"Nombre", nombre}, {"Maquina", "KRT300"}, {"sec", i}, {"Campo", campos[i]}});
    }
    std::function<void()> Ocultar()
    {
        return [this] { hechos << "ocultar"; };
    }
};

QStringList Exportados()
{
    return Campos_Exportar.mid(0, Campos_Exportar.indexOf(QString()));
}

} // namespace

class TestDialogosFormatos : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void sin_formatos_no_se_muestra();
    void se_listan_los_de_la_operacion();
    void elegir_muestra_el_formato();
    void un_formato_bloqueado();
    void un_formato_ajeno_avisa();
    void aceptar_sin_formato_pita();
    void aceptar_exporta();
    void aceptar_imprime();
    void una_lista_vacia_pasa();
    void los_desplazamientos_se_piden_por_su_eje_data();
    void los_desplazamientos_se_piden_por_su_eje();
    void cancelar_los_desplazamientos_termina();
    void el_boton_de_la_rejilla();
    void el_nivel_va_a_sus_dialogos();

    void el_nuevo_ofrece_sus_tipos();
    void el_nuevo_de_una_sesion();
    void el_nuevo_de_mantenimiento_sigue_al_tipo();
    void el_nuevo_comprueba_antes_de_guardar();
    void el_nuevo_se_guarda_y_exporta();
    void el_nuevo_que_se_cancela_queda_guardado();
    void el_nuevo_repetido_se_rechaza();
    void el_nuevo_de_la_lista_se_reemplaza();

    void el_mantenimiento_recuerda_el_ultimo();
    void el_mantenimiento_muestra_el_formato();
    void el_mantenimiento_guarda();
    void el_mantenimiento_no_guarda_lo_bloqueado();
    void el_mantenimiento_elimina_tambien_lo_bloqueado();
    void el_mantenimiento_hace_uno_nuevo();
};

void TestDialogosFormatos::sin_formatos_no_se_muestra()
{
    Escena e;
    Formato_Existente modelo({1, "KRT300", 0, "Datos de medición"}, "E");
    QVERIFY(!modelo.Ver());
    QCOMPARE(e.guion.Textos(), QStringList{"No hay formatos disponibles"});
    QCOMPARE(e.guion.avisos[0].icono, Icono::Informacion);
}

void TestDialogosFormatos::se_listan_los_de_la_operacion()
{
    Escena e;
    Formato_Existente modelo(e.sesion, "E");
    QVERIFY(modelo.Ver());
    QCOMPARE(modelo.titulo, QStringLiteral("Formatos Disponibles para [Datos de coordenadas]"));
    QCOMPARE(modelo.nombres, (QStringList{"NXYZ", "CODIGOS", "RAROS"}));
    QCOMPARE(modelo.indice, -1);
    QVERIFY(modelo.listas.disponibles.isEmpty() && modelo.listas.elegidos.isEmpty());
}

void TestDialogosFormatos::elegir_muestra_el_formato()
{
    Escena e;
    Formato_Existente modelo(e.sesion, "E");
    modelo.Ver();
    modelo.Elegir(1);
    QCOMPARE(modelo.descripcion, QStringLiteral("Formato CODIGOS"));
    QVERIFY(modelo.check2_visible && !modelo.label2_visible && !modelo.bloqueado &&
            !modelo.cabeceras);
    QCOMPARE(modelo.listas.elegidos, (QStringList{"Punto", "Código"}));
    QCOMPARE(modelo.listas.disponibles,
             (QStringList{"Coordenada Y", "Coordenada X", "Estación", "Altura Instrumento"}));
    QVERIFY(e.guion.avisos.isEmpty());
}

void TestDialogosFormatos::un_formato_bloqueado()
{
    Escena e;
    Formato_Existente modelo(e.sesion, "E");
    modelo.Ver();
    modelo.Elegir(0);
    QVERIFY(!modelo.check2_visible && modelo.label2_visible && modelo.bloqueado &&
            modelo.cabeceras);
    QCOMPARE(modelo.label2, QStringLiteral("No modificable"));
    modelo.Elegir(1);
    QVERIFY(modelo.check2_visible && !modelo.label2_visible && !modelo.bloqueado);
}

void TestDialogosFormatos::un_formato_ajeno_avisa()
{
    Escena e;
    Formato_Existente modelo(e.sesion, "E");
    modelo.Ver();
    modelo.Elegir(2);
    QCOMPARE(e.guion.Textos(), QStringList{Aviso_Campos("RAROS")});
    QCOMPARE(e.guion.avisos[0].icono, Icono::Informacion);
    // A warning only.
    QCOMPARE(modelo.listas.elegidos, QStringList{"Inventado"});
    QVERIFY(modelo.Aceptar(e.Ocultar()));
    QCOMPARE(e.hechos.last(), QStringLiteral("exportar 1 KRT300 1 RAROS"));
}

void TestDialogosFormatos::aceptar_sin_formato_pita()
{
    Escena e;
    Formato_Existente modelo(e.sesion, "E");
    modelo.Ver();
    QVERIFY(!modelo.Aceptar(e.Ocultar()));
    QCOMPARE(e.guion.pitidos, 1);
    QVERIFY(e.hechos.isEmpty());
}

void TestDialogosFormatos::aceptar_exporta()
{
    Escena e;
    Desp_X = "99";
    Campos_Exportar[5] = "resto";
    Formato_Existente modelo(e.sesion, "E");
    modelo.Ver();
    modelo.Elegir(0);
    // Changes are for this export only.
    modelo.listas.Quitar({1});
    modelo.cabeceras = false;
    QVERIFY(modelo.Aceptar(e.Ocultar()));
    QCOMPARE(Exportados(), (QStringList{"Punto", "Coordenada Y"}));
    QCOMPARE(Campos_Exportar[5], QString());
    QVERIFY(!Incluir_Cabeceras);
    QCOMPARE(Desp_X, QStringLiteral("0"));
    QCOMPARE(e.hechos, (QStringList{"ocultar", "exportar 1 KRT300 1 NXYZ"}));
    QCOMPARE(Campos_Formato(*Base_Datos, "KRT300", "NXYZ").size(), 3);
}

void TestDialogosFormatos::aceptar_imprime()
{
    Escena e;
    Formato_Existente modelo(e.sesion, "I");
    modelo.Ver();
    modelo.Elegir(0);
    QVERIFY(modelo.Aceptar(e.Ocultar()));
    QVERIFY(Incluir_Cabeceras);
    QCOMPARE(e.hechos, (QStringList{"ocultar", "imprimir 1 KRT300 1 NXYZ"}));
}

void TestDialogosFormatos::una_lista_vacia_pasa()
{
    Escena e;
    Formato_Existente modelo(e.sesion, "E");
    modelo.Ver();
    modelo.Elegir(1);
    modelo.listas.Quitar({0, 1});
    QVERIFY(modelo.Aceptar(e.Ocultar()));
    QCOMPARE(Exportados(), QStringList());
    QCOMPARE(e.hechos.size(), 2);
    // More fields than the table holds: reported, and the dialog stays.
    for (int i = 0; i < 258; ++i)
        modelo.listas.elegidos << QString::number(i);
    QVERIFY(!modelo.Aceptar(e.Ocultar()));
    QVERIFY(e.guion.avisos.last().texto.contains("(9) "));
}

void TestDialogosFormatos::los_desplazamientos_se_piden_por_su_eje_data()
{
    QTest::addColumn<bool>("activo");
    QTest::addColumn<QStringList>("campos");
    QTest::addColumn<QString>("pedido");
    QTest::newRow("dos ejes") << true << QStringList{"Punto", "Coordenada X", "Coordenada Y"}
                              << "desplazar 110 7,3 desde 0";
    QTest::newRow("solo la cota") << true << QStringList{"Coordenada Z"}
                                  << "desplazar 001 7,3 desde 0";
    QTest::newRow("sin coordenadas") << true << QStringList{"Punto", "Código"} << "";
    QTest::newRow("apagado") << false << QStringList{"Coordenada X"} << "";
}

void TestDialogosFormatos::los_desplazamientos_se_piden_por_su_eje()
{
    QFETCH(bool, activo);
    QFETCH(QStringList, campos);
    Escena e;
    Offset_Exportar = activo;
    Desp_X = "99";
    QVERIFY(Preparar_Exportacion("KRT300", campos, true));
    QTEST(e.hechos.join('|'), "pedido");
}

void TestDialogosFormatos::cancelar_los_desplazamientos_termina()
{
    Escena e;
    Offset_Exportar = true;
    e.acepta_desplazamientos = false;
    Formato_Existente modelo(e.sesion, "E");
    modelo.Ver();
    modelo.Elegir(0);
    QVERIFY(modelo.Aceptar(e.Ocultar()));
    QCOMPARE(e.hechos, QStringList{"desplazar 110 7,3 desde 0"});
}

void TestDialogosFormatos::el_boton_de_la_rejilla()
{
    Escena e;
    Exporta_o_Imprime_Formato_Existente({}, "E");
    QCOMPARE(e.guion.pitidos, 1);
    Exporta_Formato_Nuevo({});
    QCOMPARE(e.guion.pitidos, 2);
    Poner_Sesion(e.p, 2, "KRT300", 1, {});
    const Sesion_Elegida vacia{2, "KRT300", 1, ""};
    Exporta_o_Imprime_Formato_Existente(vacia, "E");
    Exporta_Formato_Nuevo(vacia);
    QCOMPARE(e.guion.Textos(),
             (QStringList{"No hay datos disponibles!!!", "No hay datos disponibles!!!"}));
    QVERIFY(e.hechos.isEmpty());

    Peticiones_De_Formatos().Mostrar_Existente = [&](Formato_Existente& m) {
        e.hechos << "existente " + m.titulo;
        m.Elegir(0);
        m.Aceptar(e.Ocultar());
    };
    Peticiones_De_Formatos().Mostrar_Nuevo = [&](Formato_Nuevo& m) {
        e.hechos << "nuevo " + m.titulo;
    };
    Exporta_o_Imprime_Formato_Existente(e.sesion, "I");
    QVERIFY(!Tipo_Ficheros_Puntos);
    Exporta_o_Imprime_Formato_Existente(e.sesion, "E");
    QVERIFY(Tipo_Ficheros_Puntos);
    Exporta_Formato_Nuevo(e.sesion);
    QCOMPARE(e.hechos,
             (QStringList{"existente Formatos Disponibles para [Datos de coordenadas]", "ocultar",
                          "imprimir 1 KRT300 1 NXYZ",
                          "existente Formatos Disponibles para [Datos de coordenadas]", "ocultar",
                          "exportar 1 KRT300 1 NXYZ", "nuevo Crear formato nuevo"}));
    Tipo_Ficheros_Puntos = false;
}

void TestDialogosFormatos::el_nivel_va_a_sus_dialogos()
{
    Escena e;
    Poner_Sesion(e.p, 3, "NV400", 0, {{"", "g,1"}});
    Peticiones_De_Formatos().Mostrar_Existente_NV400 = [&](const Formato_Existente_Nivel& m) {
        e.hechos << "nivel " + QString::number(m.Sesion().id) + m.nombres.join(',') + m.titulo;
    };
    Peticiones_De_Formatos().Mostrar_Nuevo_NV400 = [&](const Formato_Nuevo_Nivel& m) {
        e.hechos << "nuevo nivel " + m.titulo;
    };
    const Sesion_Elegida sesion{3, "NV400", 0, "Niveles"};
    Exporta_o_Imprime_Formato_Existente(sesion, "I");
    QCOMPARE(e.guion.Textos(), QStringList{"No hay formatos disponibles"});
    Nivel_De_Prueba::Poner_Formato(e.p, "F", {"Trabajo"}, {"Cota"});
    Exporta_o_Imprime_Formato_Existente(sesion, "I");
    Exporta_Formato_Nuevo(sesion);
    QCOMPARE(e.hechos, (QStringList{"nivel 3FFormatos Disponibles para [Niveles]",
                                    "nuevo nivel Crear formato nuevo"}));
}

void TestDialogosFormatos::el_nuevo_ofrece_sus_tipos()
{
    Escena e;
    Formato_Nuevo modelo("KRT300");
    modelo.Crear();
    // The downloads, by their description; not the uploads.
    QCOMPARE(modelo.tipos, (QStringList{"Datos de coordenadas", "Datos de medición"}));
    QCOMPARE(modelo.tag_tipos, QStringLiteral("1\u00060"));
    QCOMPARE(modelo.tipo, 0);
    QCOMPARE(modelo.nombres, (QStringList{"NXYZ", "CODIGOS", "RAROS"}));
    QCOMPARE(
        modelo.listas.disponibles,
        (QStringList{"Punto", "Coordenada Y", "Coordenada X", "Coordenada Z", "Código",
                     "Ángulo Horizontal", "Distancia", "Nota", "Estación", "Altura Instrumento"}));
}

void TestDialogosFormatos::el_nuevo_de_una_sesion()
{
    Escena e;
    Poner_Sesion(e.p, 2, "KRT300", 0, {{"1", "cA"}});
    Formato_Nuevo modelo("KRT300", Sesion_Elegida{2, "KRT300", 0, ""});
    modelo.Crear();
    QCOMPARE(modelo.tipo, 1);
    const QStringList ofrecidos = {"Punto", "Código", "Estación", "Altura Instrumento"};
    QCOMPARE(modelo.listas.disponibles, ofrecidos);
    // Another kind doesn't change what the session's data offer.
    modelo.Elegir_Tipo(0);
    QCOMPARE(modelo.listas.disponibles, ofrecidos);
}

void TestDialogosFormatos::el_nuevo_de_mantenimiento_sigue_al_tipo()
{
    Escena e;
    Poner_Registro(e.p, "KRT300", {0}, "T", "Temperatura", "C", {{"Temperatura", 4}});
    Formato_Nuevo modelo("KRT300");
    modelo.Crear();
    modelo.Escribir_Nombre("A medias");
    modelo.listas.Agregar({0});
    QVERIFY(!modelo.listas.disponibles.contains("Temperatura"));
    modelo.Elegir_Tipo(1);
    QVERIFY(modelo.listas.disponibles.contains("Temperatura"));
    QVERIFY(modelo.listas.elegidos.isEmpty());
    QCOMPARE(modelo.nombre, QString());
}

void TestDialogosFormatos::el_nuevo_comprueba_antes_de_guardar()
{
    Escena e;
    Formato_Nuevo modelo("KRT300");
    modelo.Crear();
    modelo.Escribir_Nombre("  ");
    QVERIFY(!modelo.Aceptar(e.Ocultar()));
    modelo.Escribir_Nombre("VACÍO");
    QVERIFY(!modelo.Aceptar(e.Ocultar()));
    QCOMPARE(e.guion.Textos(), (QStringList{"El Nombre del formato no puede quedar en blanco!!",
                                            "No se han seleccionado campos para el formato"}));
    QCOMPARE(e.guion.avisos[1].icono, Icono::Critico);
    QCOMPARE(modelo.guardado, QString());
    QCOMPARE(Nombres_Formatos(*Base_Datos, "KRT300").size(), 3);
}

void TestDialogosFormatos::el_nuevo_se_guarda_y_exporta()
{
    Escena e;
    Offset_Exportar = true;
    Desp_X = "99";
    Formato_Nuevo modelo("KRT300", e.sesion);
    modelo.Crear();
    modelo.Escribir_Nombre("MÍO");
    modelo.descripcion = "el mío";
    modelo.cabeceras = true;
    modelo.listas.Agregar({0});
    modelo.listas.Agregar({1});
    QVERIFY(modelo.Aceptar(e.Ocultar()));
    QCOMPARE(modelo.guardado, QStringLiteral("MÍO"));
    const auto f = Buscar_Formato(*Base_Datos, "KRT300", "MÍO");
    QVERIFY(f && f->cabeceras && f->modificable && f->ope == 1);
    QCOMPARE(f->descripcion, QStringLiteral("el mío"));
    QCOMPARE(f->ids, "y x c " + QString(28, ' '));
    QCOMPARE(Campos_Formato(*Base_Datos, "KRT300", "MÍO"), (QStringList{"Punto", "Coordenada X"}));
    QVERIFY(Incluir_Cabeceras);
    QCOMPARE(Exportados(), (QStringList{"Punto", "Coordenada X"}));
    QCOMPARE(e.hechos,
             (QStringList{"ocultar", "desplazar 100 7,3 desde 0", "exportar 1 KRT300 1 MÍO"}));
}

void TestDialogosFormatos::el_nuevo_que_se_cancela_queda_guardado()
{
    Escena e;
    Offset_Exportar = true;
    e.acepta_desplazamientos = false;
    Formato_Nuevo modelo("KRT300", e.sesion);
    modelo.Crear();
    modelo.Escribir_Nombre("MÍO");
    modelo.listas.Agregar({1});
    QVERIFY(modelo.Aceptar(e.Ocultar()));
    QVERIFY(Buscar_Formato(*Base_Datos, "KRT300", "MÍO"));
    QVERIFY(!e.hechos.join('|').contains("exportar"));
}

void TestDialogosFormatos::el_nuevo_repetido_se_rechaza()
{
    Escena e;
    Formato_Nuevo modelo("KRT300");
    modelo.Crear();
    modelo.Escribir_Nombre("NXYZ");
    modelo.listas.Agregar({0});
    QVERIFY(!modelo.Aceptar(e.Ocultar()));
    QVERIFY(e.guion.avisos.last().texto.contains("\r(3022) "));
    QCOMPARE(e.guion.avisos.last().icono, Icono::Critico);
    QCOMPARE(Campos_Formato(*Base_Datos, "KRT300", "NXYZ").size(), 3);
}

void TestDialogosFormatos::el_nuevo_de_la_lista_se_reemplaza()
{
    Escena e;
    Formato_Nuevo modelo("KRT300");
    modelo.Crear();
    modelo.Elegir_Nombre(1);
    QCOMPARE(modelo.nombre, QStringLiteral("CODIGOS"));
    modelo.listas.Agregar({0});
    QVERIFY(modelo.Aceptar(e.Ocultar()));
    QCOMPARE(Campos_Formato(*Base_Datos, "KRT300", "CODIGOS"), QStringList{"Punto"});
    // From the maintenance nothing is exported.
    QVERIFY(e.hechos.isEmpty());
}

void TestDialogosFormatos::el_mantenimiento_recuerda_el_ultimo()
{
    Escena e;
    Mantenimiento_Formatos primero;
    primero.Cargar();
    QCOMPARE(primero.nombres, (QStringList{"NXYZ", "CODIGOS", "RAROS"}));
    QCOMPARE(primero.nombre, QString());
    primero.Elegir("CODIGOS");
    primero.Cerrar();
    QCOMPARE(Perfil::Leer(Fichero_Posicion(), "FORMATOKRT300", "formato", ""),
             QStringLiteral("CODIGOS"));
    Mantenimiento_Formatos segundo;
    segundo.Cargar();
    QCOMPARE(segundo.nombre, QStringLiteral("CODIGOS"));
    QCOMPARE(segundo.listas.elegidos, (QStringList{"Punto", "Código"}));
    Clave_Estacion = "PX7";
    Mantenimiento_Formatos otra_familia;
    otra_familia.Cargar();
    QCOMPARE(otra_familia.nombre, QString());
    QVERIFY(otra_familia.nombres.isEmpty());
}

void TestDialogosFormatos::el_mantenimiento_muestra_el_formato()
{
    Escena e;
    Mantenimiento_Formatos m;
    m.Cargar();
    m.Elegir("NXYZ");
    QCOMPARE(m.es_modificable, QStringLiteral("No"));
    QVERIFY(m.bloqueado && m.cabeceras);
    QCOMPARE(m.tipo, QStringLiteral("Datos de coordenadas"));
    QCOMPARE(m.listas.elegidos, (QStringList{"Punto", "Coordenada X", "Coordenada Y"}));
    QCOMPARE(m.listas.disponibles, (QStringList{"Estación", "Altura Instrumento"}));
    m.Elegir("CODIGOS");
    QCOMPARE(m.es_modificable, QStringLiteral("Si"));
    QVERIFY(!m.bloqueado && !m.cabeceras);
    m.Elegir("no existe");
    QCOMPARE(m.es_modificable, QString());
    QVERIFY(m.listas.elegidos.isEmpty() && m.tipo.isEmpty());
}

void TestDialogosFormatos::el_mantenimiento_guarda()
{
    Escena e;
    Mantenimiento_Formatos m;
    m.Cargar();
    m.Guardar();
    QCOMPARE(e.guion.Textos(), QStringList{"El Nombre del formato no puede quedar en blanco!!"});
    m.Elegir("CODIGOS");
    m.listas.Bajar({0});
    m.cabeceras = true;
    m.descripcion = "cambiada";
    m.Guardar();
    const auto f = Buscar_Formato(*Base_Datos, "KRT300", "CODIGOS");
    QVERIFY(f->cabeceras && f->modificable && f->ids == u"c" && f->descripcion == u"cambiada");
    QCOMPARE(Campos_Formato(*Base_Datos, "KRT300", "CODIGOS"), (QStringList{"Código", "Punto"}));
    Base_Datos->Execute("DELETE FROM Formatos1 WHERE Nombre = 'CODIGOS'");
    m.Guardar();
    QCOMPARE(e.guion.avisos.last().texto,
             QStringLiteral("No se puede guardar; el formato 'CODIGOS' ha sido eliminado"));
}

void TestDialogosFormatos::el_mantenimiento_no_guarda_lo_bloqueado()
{
    Escena e;
    Mantenimiento_Formatos m;
    m.Cargar();
    m.Elegir("NXYZ");
    m.descripcion = "otra";
    m.Guardar();
    QCOMPARE(e.guion.pitidos, 1);
    QCOMPARE(Buscar_Formato(*Base_Datos, "KRT300", "NXYZ")->descripcion,
             QStringLiteral("Formato NXYZ"));
}

void TestDialogosFormatos::el_mantenimiento_elimina_tambien_lo_bloqueado()
{
    Escena e;
    Mantenimiento_Formatos m;
    m.Cargar();
    m.Eliminar();
    QCOMPARE(e.guion.pitidos, 1);
    e.guion.respuestas = {false, true};
    m.Elegir("NXYZ");
    m.Eliminar();
    QCOMPARE(m.nombre, QStringLiteral("NXYZ"));
    m.Eliminar();
    QCOMPARE(m.nombre, QString());
    QVERIFY(m.listas.elegidos.isEmpty() && m.listas.disponibles.isEmpty() &&
            m.descripcion.isEmpty());
    QCOMPARE(m.nombres, (QStringList{"CODIGOS", "RAROS"}));
    QCOMPARE(e.guion.Textos(), QStringList(2, "¿ Desea Eliminar el Formato ?"));
}

void TestDialogosFormatos::el_mantenimiento_hace_uno_nuevo()
{
    Escena e;
    Peticiones_De_Formatos().Mostrar_Nuevo = [](Formato_Nuevo&) {};
    Mantenimiento_Formatos m;
    m.Cargar();
    m.Elegir("CODIGOS");
    m.Nuevo();
    QCOMPARE(m.nombre, QStringLiteral("CODIGOS"));
    Peticiones_De_Formatos().Mostrar_Nuevo = [&](Formato_Nuevo& nuevo) {
        nuevo.Escribir_Nombre("RECIÉN");
        nuevo.listas.Agregar({0});
        QVERIFY(nuevo.Aceptar(e.Ocultar()));
    };
    m.Nuevo();
    QCOMPARE(m.nombre, QStringLiteral("RECIÉN"));
    QCOMPARE(m.listas.elegidos, QStringList{"Punto"});
    QVERIFY(m.nombres.contains("RECIÉN"));
}

PRUEBA(TestDialogosFormatos)
#include "TestDialogosFormatos.moc"
