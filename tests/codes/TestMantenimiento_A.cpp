#include "codes/Ficha_Libreria.h"
#include "codes/Mantenimiento_A.h"
#include "core/Ayuda.h"
#include "tests/apoyo/Prueba.h"
#include "tests/codes/Sala_Librerias.h"

class TestMantenimiento_A : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void init();
    void cleanup();
    void cargar_ensena_la_primera();
    void los_codigos_se_anaden_insertan_y_editan();
    void lo_que_no_es_un_codigo_data();
    void lo_que_no_es_un_codigo();
    void un_codigo_de_once_queda_en_diez();
    void cincuenta_y_no_mas();
    void eliminar_pregunta();
    void tecleado_en_la_rejilla();
    void guardar_escribe_la_lista();
    void guardar_lo_borrado_no_pierde_nada();
    void cambiar_de_libreria_pregunta();
    void ordenar_y_buscar();
    void nueva_editar_y_eliminar();
    void otro_cambio_no_se_lleva_lo_tecleado();
    void copiar_pide_una_clave_libre();
    void importar_hace_otra_libreria();
    void exportar_con_su_titulo();
    void enviar();
    void enviar_sin_nada_data();
    void enviar_sin_nada();
    void enviar_lo_que_no_cabe();
    void recibir();
    void recibida_se_ensena();
    void la_ficha_no_admite_blancos();

private:
    QStringList Codigos() const { return Solo_Codigos(m->codigos); }
    std::unique_ptr<Sala_Librerias> sala;
    std::unique_ptr<Mantenimiento_A> m;
};

void TestMantenimiento_A::init()
{
    sala = std::make_unique<Sala_Librerias>();
    m = std::make_unique<Mantenimiento_A>();
    m->Cargar();
}

void TestMantenimiento_A::cleanup()
{
    m.reset();
    sala.reset();
}

void TestMantenimiento_A::cargar_ensena_la_primera()
{
    QCOMPARE(m->Nombres(), (QStringList{"De GEN", "De VACIA"}));
    QCOMPARE(m->Tag(), QString("GEN\6VACIA"));
    QCOMPARE(m->indice, 0);
    QCOMPARE(m->Codigo(), QString("GEN"));
    QCOMPARE(m->Descripcion(), QString("De GEN"));
    QCOMPARE(Codigos(), (QStringList{"ARBOL", "CASA", "MURO"}));
    QCOMPARE(m->fila, 0);
    QVERIFY(!m->cambiado);
    Base_Datos->Execute("DELETE FROM Lib1");
    m->Cargar();
    QCOMPARE(m->indice, -1);
    QCOMPARE(m->fila, -1);
    QVERIFY(m->codigos.isEmpty());
    m->Anadir();
    m->Insertar();
    m->Editar_Codigo();
    m->Eliminar_Codigo();
    m->Guardar();
    m->Editar();
    m->Eliminar();
    m->Copiar();
    m->Exportar();
    m->Ordenar();
    QCOMPARE(sala->interfaz.pitidos, 10);
    QVERIFY(sala->interfaz.avisos.isEmpty());
}

void TestMantenimiento_A::los_codigos_se_anaden_insertan_y_editan()
{
    m->fila = 1;
    sala->interfaz.textos = {QString("NUEVO"), QString("ANTES"), QString("CAMBIADO")};
    m->Anadir();
    QCOMPARE(m->fila, 3);
    m->fila = 1;
    m->Insertar();
    QCOMPARE(m->fila, 1);
    m->fila = 2;
    m->Editar_Codigo();
    QCOMPARE(Codigos(), (QStringList{"ARBOL", "ANTES", "CAMBIADO", "MURO", "NUEVO"}));
    QCOMPARE(sala->interfaz.preguntas_texto,
             (QStringList{"Nuevo Código|Introduzca el nuevo código|",
                          "Insertar Código|Introduzca código a insertar|",
                          "Editar Código|Introduzca código a Editar|CASA"}));
    QVERIFY(m->cambiado);
    // The store knows nothing of it yet.
    QCOMPARE(sala->Codigos(Serie::A, "GEN"), (QStringList{"ARBOL", "CASA", "MURO"}));
}

void TestMantenimiento_A::lo_que_no_es_un_codigo_data()
{
    QTest::addColumn<QString>("escrito");
    QTest::addColumn<QString>("dice");
    QTest::newRow("eñe") << "SEÑAL"
                         << "El carácter 'Ñ' no es aceptado por el aparato";
    QTest::newRow("eñe y reservado") << "_SEÑAL"
                                     << "El carácter 'Ñ' no es aceptado por el aparato";
    QTest::newRow("reservado") << "A_B"
                               << "El carácter '_' es reservado";
    QTest::newRow("tabulador") << "A\tB"
                               << "El carácter '\t' no es aceptado por el aparato";
}

void TestMantenimiento_A::lo_que_no_es_un_codigo()
{
    QFETCH(QString, escrito);
    QFETCH(QString, dice);
    sala->interfaz.textos = {escrito,          std::nullopt, escrito,
                             QString("BUENO"), QString(""),  std::nullopt};
    m->Anadir();
    QVERIFY(!m->cambiado);
    QCOMPARE(sala->interfaz.preguntas_texto.size(), 2);
    QCOMPARE(sala->interfaz.avisos[0].icono, Icono::Critico);
    QCOMPARE(sala->Tomar_Avisos(), QStringList{dice});
    m->Editar_Codigo();
    QCOMPARE(sala->Tomar_Avisos(), QStringList{dice});
    QCOMPARE(Codigos()[0], QString("BUENO"));
    // Empty is nothing, and so is a box that was given up.
    m->Anadir();
    m->Anadir();
    QCOMPARE(Codigos().size(), 3);
}

void TestMantenimiento_A::un_codigo_de_once_queda_en_diez()
{
    sala->interfaz.textos = {QString("ABCDEFGHIJK"), QString("1234567890_")};
    m->Anadir();
    QCOMPARE(Codigos().last(), QString("ABCDEFGHIJ"));
    m->Anadir();
    QCOMPARE(Codigos().last(), QString("1234567890"));
}

void TestMantenimiento_A::cincuenta_y_no_mas()
{
    sala->Crear_A("LLENA", QStringList(49, "X"));
    m->Actualizar();
    m->Elegir(2);
    sala->interfaz.textos = {QString("FIN")};
    m->Anadir();
    QCOMPARE(m->codigos.size(), 50);
    m->Anadir();
    m->Insertar();
    QCOMPARE(m->codigos.size(), 50);
    QCOMPARE(sala->Tomar_Avisos(),
             QStringList(2, "El aparato sólo guarda 50 códigos por librería"));
}

void TestMantenimiento_A::eliminar_pregunta()
{
    m->fila = 2;
    sala->interfaz.respuestas = {false, true};
    m->Eliminar_Codigo();
    QVERIFY(!m->cambiado);
    m->Eliminar_Codigo();
    QCOMPARE(Codigos(), (QStringList{"ARBOL", "CASA"}));
    QCOMPARE(m->fila, 1);
    QVERIFY(m->cambiado);
    QCOMPARE(sala->Tomar_Avisos(), QStringList(2, "¿ Eliminar Código ?"));
}

void TestMantenimiento_A::tecleado_en_la_rejilla()
{
    QVERIFY(m->Poner_Codigo(1, "CASA"));
    QVERIFY(!m->cambiado);
    QVERIFY(!m->Poner_Codigo(1, ""));
    QVERIFY(!m->Poner_Codigo(1, "A_B"));
    QVERIFY(!m->Poner_Codigo(9, "X"));
    QVERIFY(!m->cambiado);
    QVERIFY(m->Poner_Codigo(1, "CASETA     "));
    QCOMPARE(Codigos(), (QStringList{"ARBOL", "CASETA", "MURO"}));
    QVERIFY(m->cambiado);
    QCOMPARE(sala->Tomar_Avisos(), QStringList{"El carácter '_' es reservado"});
}

void TestMantenimiento_A::guardar_escribe_la_lista()
{
    m->Poner_Codigo(0, "OTRO");
    m->Guardar();
    QVERIFY(!m->cambiado);
    QCOMPARE(sala->Columna("SELECT Codigos FROM Lib1 WHERE CoD = 'GEN'"),
             QStringList{"\6OTRO\6CASA\6MURO"});
    QVERIFY(m->Elegir(1));
    QVERIFY(m->Soltar());
}

void TestMantenimiento_A::guardar_lo_borrado_no_pierde_nada()
{
    m->Poner_Codigo(0, "OTRO");
    Base_Datos->Execute("DELETE FROM Lib1 WHERE CoD = 'GEN'");
    m->Guardar();
    QVERIFY(m->cambiado);
    QCOMPARE(Codigos()[0], QString("OTRO"));
    QCOMPARE(sala->Tomar_Avisos(),
             QStringList{"No se puede guardar; la librería 'GEN' ha sido eliminada"});
    Base_Datos->Close();
    m->Guardar();
    QVERIFY(m->cambiado);
    QVERIFY(
        sala->Tomar_Avisos()[0].startsWith("Se produjo un error al guardar la librería\r(3420)"));
    Base_Datos = Base::Abrir(Fichero_MDB);
}

void TestMantenimiento_A::cambiar_de_libreria_pregunta()
{
    const QString pregunta = "los cambios efectuados no han sido guardados, ¿ Desea Continuar ?";
    QVERIFY(m->Elegir(1));
    QVERIFY(m->Elegir(0));
    m->Poner_Codigo(0, "OTRO");
    sala->interfaz.respuestas = {false, true};
    QVERIFY(!m->Elegir(1));
    QCOMPARE(m->indice, 0);
    QCOMPARE(Codigos()[0], QString("OTRO"));
    QVERIFY(m->Elegir(0));
    QVERIFY(m->Elegir(1));
    QCOMPARE(m->Codigo(), QString("VACIA"));
    QVERIFY(!m->cambiado);
    QVERIFY(m->Elegir(0));
    QCOMPARE(Codigos()[0], QString("ARBOL"));
    QCOMPARE(sala->Tomar_Avisos(), QStringList(2, pregunta));
    // What would put another library in its place asks as well.
    m->Poner_Codigo(0, "OTRO");
    sala->interfaz.respuestas = {false, false, false};
    m->Nueva();
    m->Copiar();
    m->Importar();
    QCOMPARE(sala->Tomar_Avisos(), QStringList(3, pregunta));
    QCOMPARE(Codigos()[0], QString("OTRO"));
}

void TestMantenimiento_A::ordenar_y_buscar()
{
    m->Ordenar();
    QVERIFY(!m->cambiado);
    m->Poner_Codigo(0, "zeta");
    m->Ordenar();
    QCOMPARE(Codigos(), (QStringList{"CASA", "MURO", "zeta"}));
    m->Buscar("z", false);
    QCOMPARE(m->fila, 2);
    m->Buscar("u", true);
    QCOMPARE(m->fila, 1);
    m->Buscar("u", false);
    QCOMPARE(m->fila, 1);
    m->Buscar("", true);
    QCOMPARE(sala->interfaz.pitidos, 0);
    m->Buscar("nada", false);
    QCOMPARE(sala->interfaz.pitidos, 1);
    QCOMPARE(m->fila, 1);
}

void TestMantenimiento_A::nueva_editar_y_eliminar()
{
    Peticiones_De_Codigos().Mostrar_Ficha = [](Ficha_Libreria& f) {
        QCOMPARE(f.titulo, QString("Crear Librería de Códigos"));
        QVERIFY(f.nueva);
        f.codigo = "GEN";
        f.descripcion = "Mía";
        QVERIFY(!f.Aceptar());
        f.codigo = " MIA ";
        QVERIFY(f.Aceptar());
    };
    m->Nueva();
    QCOMPARE(sala->Tomar_Avisos(), QStringList{"El Código ya existe, introduzca uno diferente"});
    QCOMPARE(m->Codigo(), QString("MIA"));
    QVERIFY(m->codigos.isEmpty());
    Peticiones_De_Codigos().Mostrar_Ficha = [](Ficha_Libreria& f) {
        QCOMPARE(f.titulo, QString("Editar Librería de Códigos"));
        QVERIFY(!f.nueva);
        QCOMPARE(f.codigo, QString("MIA"));
        f.descripcion = "Otra";
        QVERIFY(f.Aceptar());
    };
    sala->interfaz.textos = {QString("X")};
    m->Anadir();
    m->Editar();
    QCOMPARE(m->Descripcion(), QString("Otra"));
    // A new description doesn't cost the codes that were not saved.
    QVERIFY(m->cambiado);
    QCOMPARE(Codigos(), QStringList{"X"});
    sala->interfaz.respuestas = {false, true};
    m->Eliminar();
    QCOMPARE(m->Codigo(), QString("MIA"));
    m->Eliminar();
    QCOMPARE(m->Codigo(), QString("GEN"));
    QVERIFY(!m->cambiado);
    QCOMPARE(sala->Claves(Serie::A), (QStringList{"GEN", "VACIA"}));
    sala->Tomar_Avisos();
    // Nothing was accepted: nothing moves.
    Peticiones_De_Codigos().Mostrar_Ficha = [](Ficha_Libreria&) {};
    m->Elegir(1);
    m->Nueva();
    QCOMPARE(m->Codigo(), QString("VACIA"));
}

void TestMantenimiento_A::otro_cambio_no_se_lleva_lo_tecleado()
{
    m->fila = 2;
    m->Poner_Codigo(2, "TAPIA");
    Crear_Libreria(*Base_Datos, Librerias_De(Serie::A), "AAA", "x");
    Guardar_Codigos(*Base_Datos, Librerias_De(Serie::A), "GEN", Como_Libreria({"AJENO"}));
    m->Actualizar();
    QCOMPARE(m->librerias.size(), 3);
    QCOMPARE(Codigos(), (QStringList{"ARBOL", "CASA", "TAPIA"}));
    QCOMPARE(m->fila, 2);
    m->cambiado = false;
    m->Actualizar();
    QCOMPARE(Codigos(), QStringList{"AJENO"});
    QCOMPARE(m->fila, 0);
}

void TestMantenimiento_A::copiar_pide_una_clave_libre()
{
    sala->interfaz.textos = {QString("VACIA"), QString(" COPIA ")};
    m->Copiar();
    QCOMPARE(
        sala->interfaz.preguntas_texto,
        (QStringList{
            "Copiar Librería de Códigos|Introduzca el nuevo código de la librería|",
            "Copiar Librería de Códigos|El Código ya existe, introduzca uno diferente|VACIA"}));
    QCOMPARE(m->Codigo(), QString("COPIA"));
    QCOMPARE(m->Descripcion(), QString("Copia de De GEN"));
    QCOMPARE(sala->Codigos(Serie::A, "COPIA"), (QStringList{"ARBOL", "CASA", "MURO"}));
    sala->interfaz.textos = {std::nullopt, QString("  ")};
    m->Copiar();
    m->Copiar();
    QCOMPARE(sala->Claves(Serie::A).size(), 3);
    Describir_Libreria(*Base_Datos, Librerias_De(Serie::A), "COPIA", QString(50, u'd'));
    m->Actualizar();
    sala->interfaz.textos = {QString(30, u'c')};
    m->Copiar();
    QCOMPARE(m->Codigo().size(), 20);
    QCOMPARE(m->Descripcion().size(), 50);
}

void TestMantenimiento_A::importar_hace_otra_libreria()
{
    sala->Escribir("obra.norte.txt", "001PIE\r\n002\r\n003EJE\r\n");
    sala->interfaz.ficheros = {Fichero_Elegido{sala->Ruta("obra.norte.txt")}, std::nullopt,
                               Fichero_Elegido{sala->Ruta("obra.norte.txt")},
                               Fichero_Elegido{sala->Ruta("no.txt")}};
    sala->interfaz.textos = {QString("OBRA"), std::nullopt};
    m->Importar();
    QCOMPARE(
        sala->interfaz.preguntas_texto,
        QStringList{
            "Importar Librería de Códigos|Introduzca el nuevo código de la librería|obra.norte"});
    QCOMPARE(m->Codigo(), QString("OBRA"));
    QCOMPARE(m->Descripcion(), QString("Librería 'OBRA'"));
    QCOMPARE(Codigos(), (QStringList{"PIE", "", "EJE"}));
    m->Importar();
    m->Importar();
    m->Importar();
    QCOMPARE(sala->Claves(Serie::A).size(), 3);
    QCOMPARE(sala->Tomar_Avisos(), QStringList{"El Fichero especificado no existe"});
}

void TestMantenimiento_A::exportar_con_su_titulo()
{
    m->Poner_Codigo(0, "VISTO");
    sala->interfaz.ficheros = {std::nullopt, Fichero_Elegido{sala->Ruta("x.txt")}};
    m->Exportar();
    m->Exportar();
    const Peticion_Fichero& p = sala->interfaz.peticiones[1];
    QCOMPARE(p.titulo, QString("Exportar librería 'GEN' a Fichero de texto"));
    QCOMPARE(p.filtro, QString("Archivos de texto(*.txt)|*.txt|Todos los Archivos (*.*)|*.*"));
    QVERIFY(p.guardar);
    QCOMPARE(sala->Leer("x.txt"), QByteArray("001VISTO\r\n002CASA\r\n003MURO\r\n"));
    QVERIFY(m->cambiado);
}

void TestMantenimiento_A::enviar()
{
    Ayuda_Visible = true;
    Paso_Ayuda = 7;
    sala->interfaz.respuestas = {false, true};
    m->Enviar();
    QVERIFY(sala->enviados.isEmpty());
    m->Enviar();
    QCOMPARE(sala->Tomar_Avisos(), QStringList(2, "¿ Enviar la librería 'GEN' a la máquina ?"));
    QCOMPARE(sala->pasos, QStringList{"C2"});
    QCOMPARE(Paso_Ayuda, 1);
    QCOMPARE(sala->enviados.size(), 1);
    QVERIFY(sala->enviados[0].startsWith(
        "_:001ARBOL     _:002CASA      _:003MURO      _:004          "));
    QCOMPARE(sala->enviados[0].size(), 750);
    Ayuda_Visible = false;
    sala->interfaz.respuestas = {true};
    m->Poner_Codigo(0, "VISTO");
    m->Enviar();
    QCOMPARE(sala->pasos.size(), 1);
    // What is on the screen goes out.
    QVERIFY(sala->enviados[1].startsWith("_:001VISTO     "));
    QCOMPARE(sala->Tomar_Avisos().size(), 1);
}

void TestMantenimiento_A::enviar_sin_nada_data()
{
    QTest::addColumn<QString>("familia");
    QTest::addColumn<bool>("vacia");
    QTest::addColumn<QString>("dice");
    const QString nada =
        "No hay ninguna librería seleccionada o \r\nla librería no contiene códigos";
    QTest::newRow("sin códigos") << "KRT300" << true << nada;
    QTest::newRow("PX7 sin códigos") << "PX7" << true << nada;
    QTest::newRow("otra serie")
        << "KRT800" << false << "El modelo KRT300-1 no admite librerías de códigos de la serie A";
    QTest::newRow("nivel") << "NV400" << false
                           << "El modelo KRT300-1 no admite librerías de códigos de la serie A";
}

void TestMantenimiento_A::enviar_sin_nada()
{
    QFETCH(QString, familia);
    QFETCH(bool, vacia);
    QFETCH(QString, dice);
    Clave_Estacion = familia;
    m->Elegir(vacia ? 1 : 0);
    m->Enviar();
    QCOMPARE(sala->Tomar_Avisos(), QStringList{dice});
    QVERIFY(sala->enviados.isEmpty());
    Base_Datos->Execute("DELETE FROM Lib1");
    m->Cargar();
    m->Enviar();
    QVERIFY(sala->Tomar_Avisos()[0].startsWith("No hay ninguna librería seleccionada o \r\n"));
}

void TestMantenimiento_A::enviar_lo_que_no_cabe()
{
    sala->Crear_A("LARGA", {"A", "12345678901"});
    sala->Crear_A("MALA", {"SEÑAL"});
    m->Actualizar();
    sala->interfaz.respuestas = {true, true};
    m->Elegir(2);
    m->Enviar();
    QCOMPARE(
        sala->Tomar_Avisos()[1],
        QString("Se produjo un error al enviar la librería\r(5) El código nº2 (12345678901) tiene "
                "más de 10 caracteres"));
    m->Elegir(3);
    m->Enviar();
    QCOMPARE(sala->Tomar_Avisos()[1].left(22), QString("El código nº1 (SEÑAL) "));
    QVERIFY(sala->enviados.isEmpty());
}

void TestMantenimiento_A::recibir()
{
    Ayuda_Visible = true;
    sala->interfaz.respuestas = {false, true, true};
    sala->interfaz.textos = {QString("GEN"), QString("NUEVA"), std::nullopt};
    m->Recibir();
    m->Recibir();
    QCOMPARE(
        sala->interfaz.preguntas_texto,
        (QStringList{
            "Descargar Librería de Códigos|Introduzca el nuevo código de la librería|",
            "Descargar Librería de Códigos|El Código ya existe, introduzca uno diferente|GEN"}));
    QCOMPARE(sala->pasos, QStringList{"D2"});
    QCOMPARE(sala->en_splash2.size(), 1);
    QCOMPARE(sala->en_splash2[0].destino, Destino::Base);
    QCOMPARE(sala->en_splash2[0].nombre, QString("NUEVA"));
    m->Recibir();
    QCOMPARE(sala->en_splash2.size(), 1);
    QCOMPARE(sala->Tomar_Avisos(), QStringList(3, "¿ Desea recibir la librería de Códigos ?"));
    Clave_Estacion = "KRT800";
    m->Recibir();
    QCOMPARE(sala->Tomar_Avisos().size(), 1);
    QCOMPARE(sala->en_splash2.size(), 1);
}

void TestMantenimiento_A::recibida_se_ensena()
{
    sala->interfaz.respuestas = {true};
    sala->interfaz.textos = {QString("NUEVA")};
    m->Recibir();
    QCOMPARE(sala->Tomar_Avisos().size(), 1);
    m->Actualizar();
    QCOMPARE(m->Codigo(), QString("GEN"));
    QVERIFY(Guardar_Libreria("_:001EJE       _", Destino::Base, "NUEVA").Completa());
    m->Actualizar();
    QCOMPARE(m->Codigo(), QString("NUEVA"));
    QCOMPARE(Codigos(), QStringList{"EJE"});
    m->Elegir(0);
    m->Actualizar();
    QCOMPARE(m->Codigo(), QString("GEN"));
}

void TestMantenimiento_A::la_ficha_no_admite_blancos()
{
    for (const Serie serie : {Serie::A, Serie::B}) {
        const Serie_Librerias& s = Librerias_De(serie);
        Ficha_Libreria f(serie);
        f.descripcion = "algo";
        f.codigo = "  ";
        QVERIFY(!f.Aceptar());
        f.codigo = "N";
        f.descripcion = " ";
        QVERIFY(!f.Aceptar());
        for (const auto& a : sala->interfaz.avisos)
            QCOMPARE(a.icono, Icono::Exclamacion);
        QCOMPARE(sala->Tomar_Avisos(), (QStringList{s.sin_codigo, s.sin_descripcion}));
        f.descripcion = "algo";
        QVERIFY(f.Aceptar());
        QCOMPARE(f.Guardada(), QString("N"));
        Ficha_Libreria otra(serie, Cabecera_Libreria{"NO", "x"});
        otra.descripcion = "y";
        QVERIFY(!otra.Aceptar());
        QCOMPARE(sala->Tomar_Avisos(),
                 QStringList{"No se puede guardar; la librería 'NO' ha sido eliminada"});
    }
    QCOMPARE(Librerias_De(Serie::A).sin_codigo,
             QString("El código de Librería no se puede dejar en blanco"));
    QCOMPARE(Librerias_De(Serie::B).sin_codigo,
             QString("El código de librería no se puede dejar en blanco"));
}

PRUEBA(TestMantenimiento_A)
#include "TestMantenimiento_A.moc"
