#include "tests/apoyo/Prueba.h"
#include "tests/tools/Tablas_De_Prueba.h"

class TestComprobaciones : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void las_tablas_entregadas_no_tienen_faltas();
    void una_fila_mala_se_dice_con_su_linea_data();
    void una_fila_mala_se_dice_con_su_linea();
    void falta_una_imagen();
    void falta_un_fichero();
    void una_familia_sin_modelos();
};

void TestComprobaciones::las_tablas_entregadas_no_tienen_faltas()
{
    QCOMPARE(Tablas_De_Prueba().Faltas(), QStringList());
}

void TestComprobaciones::una_fila_mala_se_dice_con_su_linea_data()
{
    QTest::addColumn<QString>("fichero");
    QTest::addColumn<QByteArray>("viejo");
    QTest::addColumn<QByteArray>("nuevo");
    QTest::addColumn<QString>("motivo");
    const auto caso = [](const char* nombre, const char* fichero, const char* viejo,
                         const char* nuevo, const QString& motivo) {
        QTest::newRow(nombre) << QString::fromLatin1(fichero) << QByteArray(viejo)
                              << QByteArray(nuevo) << motivo;
    };
    // Form
    caso("cabecera", "OPE.csv", "OPE,DESOPE", "OPE,Texto", "la cabecera debe ser OPE,DESOPE");
    caso("celda de más", "OPE.csv", "4,Puntos", "4,Puntos,1", "tiene 3 celdas y la cabecera 2");
    caso("celda de menos", "OPE.csv", "4,Puntos", "4", "tiene 1 celdas y la cabecera 2");
    caso("letras por número", "OPE.csv", "4,Puntos", "x4,Puntos",
         "\"x4\" no es un número en la columna OPE");
    caso("número negativo", "OPE.csv", "4,Puntos", "-4,Puntos", "\"-4\" no es un número");
    caso("celda vacía", "OPE.csv", "4,Puntos", "4,", "la columna DESOPE está vacía");
    caso("blanco al final", "OPE.csv", "4,Puntos", "4,Puntos ",
         "sobran blancos en la columna DESOPE");
    caso("clave repetida", "OPE.csv", "5,Trabajo", "4,Trabajo",
         "repite la clave (4) de la línea 5");
    caso("formato repetido", "Formatos1.csv", "\nNXYZCOD,KRT300", "\nNXYZ,KRT300",
         "repite la clave (NXYZ, KRT300) de la línea 2");
    caso("campo dos veces en un formato", "Formatos2.csv", "NXYZ,KRT300,2,Coordenada Y",
         "NXYZ,KRT300,2,Coordenada X", "repite la clave (NXYZ, KRT300, Coordenada X)");
    caso("texto más ancho que su columna", "OPE.csv", "4,Puntos",
         "4,Una descripción que pasa de los cincuenta caracteres que caben",
         "el texto pasa de los 50 caracteres de la columna DESOPE");
    // Models and operations
    caso("familia de un modelo", "KRT.csv", "KRT-310,KRT300", "KRT-310,KRT400",
         "familia desconocida \"KRT400\"");
    caso("velocidad", "KRT.csv", "KRT-310,KRT300,krt310.png,krt310.png,\"1200,",
         "KRT-310,KRT300,krt310.png,krt310.png,\"1250,", "velocidad \"1250\" no admitida");
    caso("formato de coordenadas", "KRT.csv", "\"7,3\"", "73", "FormatoCoord \"73\" no es \"e,d\"");
    caso("foto", "KRT.csv", "krt310.png", "otra.png", "falta la imagen /bmphlp/otra.png");
    caso("foto pequeña", "KRT.csv", "krt310.png,krt310.png", "krt310.png,otra.png",
         "falta la imagen /bmphlp/ini/otra.png");
    caso("descripción repetida", "OPE.csv", "9,Puntos de Replanteo", "9,Puntos",
         "la descripción \"Puntos\" se repite");
    caso("familia de una operación", "KRT2.csv", "PX7,0,D", "PX8,0,D",
         "familia desconocida \"PX8\"");
    caso("operación sin descripción", "KRT2.csv", "NV400,4,C", "NV400,3,C",
         "la operación 3 no tiene descripción en OPE");
    caso("dirección", "KRT2.csv", "NV400,4,C", "NV400,4,X", "TipOpe \"X\" no es D ni C");
    caso("dirección en minúscula", "KRT2.csv", "NV400,4,C", "NV400,4,c",
         "TipOpe \"c\" no es D ni C");
    caso("clave de CONVERT", "KRT2.csv", "NV400,4,C,ASC", "NV400,4,C,ASK",
         "Conv nombra \"ASK\", que no está en CONVERT");
    caso("clave de CONVERT con blanco", "KRT2.csv", "\"IGN,NIV\"", "\"IGN, NIV\"",
         "Conv nombra \" NIV\"");
    caso("patrón de un filtro", "CONVERT.csv", "*.hd6),*.hd6", "*.hd6),hd6",
         "el filtro no es un texto y un patrón");
    caso("barra en un filtro", "CONVERT.csv", "Formato HD-6 (", "Formato|HD-6 (",
         "el filtro no es un texto y un patrón");
    // Record kinds
    caso("familia de un registro", "Identificadores.csv", "PX7,0,J", "PX9,0,J",
         "familia desconocida \"PX9\"");
    caso("operación que no se descarga", "Identificadores.csv", "NV400,0,t", "NV400,4,t",
         "NV400 no descarga la operación 4");
    caso("identificador de dos letras", "Identificadores.csv", "KRT300,0,h,", "KRT300,0,hh,",
         "el identificador \"hh\" no es un carácter libre");
    caso("identificador reservado", "Identificadores.csv", "KRT300,0,h,", "KRT300,0,+,",
         "el identificador \"+\" no es un carácter libre");
    caso("mitad del nivel", "Identificadores.csv", "NV400,0,t,", "NV400,0,1,",
         "\"0\" y \"1\" son las mitades del nivel");
    caso("identificador con coma", "Identificadores.csv", "KRT800,0,SD,", "KRT800,0,\"S,D\",",
         "el identificador \"S,D\" lleva un separador");
    caso("registro de la operación 4", "Identificadores.csv", "KRT800,4,Punto,", "KRT800,5,Punto,",
         "\"Punto\" es el registro de la operación 4 y el único");
    caso("registro de la operación 7", "Identificadores.csv", "KRT800,7,Per.Trans,", "KRT800,7,SD,",
         "\"Per.Trans\" es el registro de la operación 7 y el único");
    caso("registro sin campos", "Identificadores.csv", "KRT800,5,NOT,", "KRT800,5,NTA,",
         "el registro \"NTA\" no tiene campos");
    caso("ancho del registro", "Identificadores.csv", "KRT300,0,S,Coordenadas de Estación,G,34",
         "KRT300,0,S,Coordenadas de Estación,G,33",
         "los campos del registro suman 34 y Ancho dice \"33\"");
    caso("ancho que falta", "Identificadores.csv", "KRT300,0,h,Ángulo Horizontal,P,9",
         "KRT300,0,h,Ángulo Horizontal,P,", "los campos del registro suman 9 y Ancho dice \"\"");
    caso("ancho sin columnas", "Identificadores.csv", "KRT800,5,NOT,Nota,P,",
         "KRT800,5,NOT,Nota,P,61", "Ancho sólo vale para columnas fijas");
    // Fields
    caso("familia de un campo", "Campos.csv", "\nPX7,J,", "\nPX6,J,",
         "familia desconocida \"PX6\"");
    caso("registro desconocido", "Campos.csv", "KRT800,NOT,", "KRT800,NTA,",
         "el registro \"NTA\" no está en Identificadores");
    caso("mitad en otra familia", "Campos.csv", "KRT800,NOT,Nota", "KRT800,1,Nota",
         "el registro \"1\" no está en Identificadores");
    caso("ancho cero", "Campos.csv", "KRT300,h,Ángulo Horizontal,1,8,\"3,4\"",
         "KRT300,h,Ángulo Horizontal,1,0,*", "Digitos debe ser 1 o más");
    caso("coma decimal fuera del campo", "Campos.csv", "KRT300,h,Ángulo Horizontal,1,8,\"3,4\"",
         "KRT300,h,Ángulo Horizontal,1,8,\"5,4\"",
         "PosDigit \"5,4\" pasa de los 8 dígitos del campo");
    caso("PosDigit de un número", "Campos.csv", "KRT300,h,Ángulo Horizontal,1,8,\"3,4\"",
         "KRT300,h,Ángulo Horizontal,1,8,3", "PosDigit \"3\" no es \"*\" ni \"e,d\"");
    caso("PosDigit de letras", "Campos.csv", "KRT300,h,Ángulo Horizontal,1,8,\"3,4\"",
         "KRT300,h,Ángulo Horizontal,1,8,\"3,x\"", "PosDigit \"3,x\" no es");
    caso("dibujo", "Campos.csv", "KRT300,h,Ángulo Horizontal,1,8,\"3,4\",0.0000",
         "KRT300,h,Ángulo Horizontal,1,8,\"3,4\",0.00#",
         "Forsalida \"0.00#\" no es un dibujo de número");
    caso("dibujo con coma", "Campos.csv", "KRT300,h,Ángulo Horizontal,1,8,\"3,4\",0.0000",
         "KRT300,h,Ángulo Horizontal,1,8,\"3,4\",\"0,00\"",
         "Forsalida \"0,00\" no es un dibujo de número");
    caso("tratamiento", "Campos.csv", "KRT300,E,Estación,1,10,*,,ED",
         "KRT300,E,Estación,1,10,*,,EX", "Especial \"EX\" no es una lista de CD, CI y ED");
    caso("tratamiento dos veces", "Campos.csv", "KRT300,E,Estación,1,10,*,,ED",
         "KRT300,E,Estación,1,10,*,,\"CD,CD\"", "Especial \"CD,CD\" no es una lista");
    caso("marca", "Campos.csv", "KRT300,x,Coordenada Y,1,11,\"7,3\",0.000,,CY",
         "KRT300,x,Coordenada Y,1,11,\"7,3\",0.000,,CW", "marca \"CW\" desconocida");
    caso("GE fuera de su familia", "Campos.csv", "KRT300,x,Coordenada Y,1,11,\"7,3\",0.000,,CY",
         "KRT300,x,Coordenada Y,1,11,\"7,3\",0.000,,GE", "la marca GE es de KRT800");
    caso("coordenada sin decimales", "Campos.csv", "KRT300,x,Coordenada Y,1,11,\"7,3\"",
         "KRT300,x,Coordenada Y,1,11,*", "una coordenada necesita enteros y decimales");
    caso("coordenada sin signo", "Campos.csv", "KRT300,x,Coordenada Y,1,11,\"7,3\"",
         "KRT300,x,Coordenada Y,1,11,\"8,3\"", "no queda sitio para el signo");
    caso("coordenada del nivel", "Campos.csv", "NV400,1,Cota,5,11,*,##0.0000,,",
         "NV400,1,Cota,5,11,*,##0.0000,,CZ", "el nivel no desplaza coordenadas");
    caso("marca decimal", "Campos.csv", "KRT300,h,Ángulo Horizontal,1,8,\"3,4\",0.0000,,,.",
         "KRT300,h,Ángulo Horizontal,1,8,\"3,4\",0.0000,,,;",
         "Caracter \";\" no es una marca decimal");
    caso("lugar en la línea del nivel", "Campos.csv", "NV400,1,Punto,2,8,*,,,,5",
         "NV400,1,Punto,2,8,*,,,,.", "Caracter \".\" no es el lugar del campo en la línea");
    caso("lugar que el nivel no tiene", "Campos.csv", "NV400,1,Punto,2,8,*,,,,5",
         "NV400,1,Punto,2,8,*,,,,29", "Caracter \"29\" no es el lugar");
    caso("lugar que falta", "Campos.csv", "NV400,1,Punto,2,8,*,,,,5", "NV400,1,Punto,2,8,*,,,,",
         "Caracter \"\" no es el lugar");
    caso("nombre con apóstrofo", "Campos.csv", "KRT800,NOT,Nota", "KRT800,NOT,Nota d'obra",
         "el nombre \"Nota d'obra\" lleva un carácter reservado");
    caso("nombre largo en el nivel", "Campos.csv", "NV400,c,Versión",
         "NV400,c,Versión de la programación interna del ap", "el nombre pasa de 40 caracteres");
    caso("orden", "Campos.csv", "KRT800,SD,Ángulo Vertical,2", "KRT800,SD,Ángulo Vertical,4",
         "Orden debe ser 2");
    caso("marcas distintas", "Campos.csv", "KRT800,FIN,Coordenada X,2,11,\"7,3\",,,CX",
         "KRT800,FIN,Coordenada X,2,11,\"7,3\",,,CY",
         "el campo \"Coordenada X\" lleva otras marcas en la línea");
    caso("general y ordinario", "Campos.csv", "KRT300,h,Ángulo Horizontal", "KRT300,h,Estación",
         "está en un registro general y en otro que no lo es");
    caso("general repetido", "Campos.csv", "KRT800,FS,Punto Frente", "KRT800,FS,Punto Visado",
         "el campo general \"Punto Visado\" se repite");
    caso("GE sin registro general", "Campos.csv", "KRT800,NOT,Nota,1,60,*,,,",
         "KRT800,NOT,Nota,1,60,*,,,GE", "la marca GE y el registro general van juntos");
    caso("general sin GE", "Campos.csv", "KRT800,JOB,Trabajo,1,20,*,,,GE",
         "KRT800,JOB,Trabajo,1,20,*,,,", "la marca GE y el registro general van juntos");
    caso("línea del nivel con NL", "Campos.csv", "NV400,b,Hora,6,5,*,,,,",
         "NV400,b,Hora,6,5,*,,,NL,", "una línea del nivel no admite la marca NL");
    caso("línea del nivel sin fila de sobra", "Campos.csv", "NV400,b,Nulo", "NV400,b,Control",
         "la fila de sobra \"Nulo\" cierra la línea");
    caso("fila de sobra en medio", "Campos.csv", "NV400,b,Hora", "NV400,b,Nulo",
         "la fila de sobra \"Nulo\" cierra la línea");
    // Formats
    caso("familia de un formato", "Formatos1.csv", "\nNXYZ,PX7,", "\nNXYZ,PX5,",
         "familia desconocida \"PX5\"");
    caso("títulos", "Formatos1.csv", "NXYZ,KRT300,Punto y coordenadas,NO,SI",
         "NXYZ,KRT300,Punto y coordenadas,No,SI", "cabeceras y Modificable son SI o NO");
    caso("modificable", "Formatos1.csv", "NXYZ,KRT300,Punto y coordenadas,NO,SI",
         "NXYZ,KRT300,Punto y coordenadas,NO,", "la columna Modificable está vacía");
    caso("operación de un formato", "Formatos1.csv", "NXYZ,KRT300,Punto y coordenadas,NO,SI,1",
         "NXYZ,KRT300,Punto y coordenadas,NO,SI,4", "KRT300 no descarga la operación 4");
    caso("registro de un formato", "Formatos1.csv", "NO,SI,1,x y z\n", "NO,SI,1,x y w\n",
         "Ids nombra \"w\", que no es un registro de la operación");
    caso("formato sin campos", "Formatos1.csv", "\nRASANTES,KRT800", "\nRASANTE,KRT800",
         "el formato no tiene campos");
    caso("campos sin formato", "Formatos2.csv", "\nNXYZ,PX7,0,", "\nNXIZ,PX7,0,",
         "el formato NXIZ de PX7 no está en Formatos1");
    caso("campo desconocido", "Formatos2.csv", "NXYZ,KRT300,1,Coordenada X",
         "NXYZ,KRT300,1,Coordenada W", "el formato nombra el campo desconocido \"Coordenada W\"");
    caso("campo de otra operación", "Formatos2.csv", "NXYZ,KRT300,1,Coordenada X",
         "NXYZ,KRT300,1,Altura Prisma", "el formato nombra el campo desconocido \"Altura Prisma\"");
    caso("Punto sin fila", "Formatos2.csv", "POLARES,KRT800,0,Punto Visado",
         "POLARES,KRT800,0,Punto", "el formato nombra el campo desconocido \"Punto\"");
    caso("campo de nivel sin mitad", "Formatos2.csv", "1:Lectura", "Lectura",
         "\"Lectura\" no es mitad y campo");
    caso("campo de la otra mitad", "Formatos2.csv", "1:Lectura", "0:Lectura",
         "el formato nombra el campo desconocido \"Lectura\"");
    caso("secuencia", "Formatos2.csv", "NXYZ,KRT300,1,", "NXYZ,KRT300,3,", "sec debe ser 1");
    // Step help
    caso("modelo de una ayuda", "Ayudas.csv", "*PX7,", "PX7-Z,", "modelo desconocido \"PX7-Z\"");
    caso("familia de una ayuda", "Ayudas.csv", "*PX7,", "*PX9,", "modelo desconocido \"*PX9\"");
    caso("operación de una ayuda", "Ayudas.csv", "*NV400,4,C,1", "*NV400,4,D,1",
         "NV400 no ofrece la operación 4 D");
    caso("texto de una ayuda", "Ayudas.csv",
         "Una con el cable el lateral del nivel y el puerto del PC.",
         "Una con el cable el lateral del nivel y el puerto del PC sin forzar ninguno de ellos.",
         "el texto pasa de 80 caracteres");
    caso("imagen de una ayuda", "Ayudas.csv", "ayu_nv400_cable.png", "otra.png",
         "falta la imagen /bmphlp/otra.png");
    caso("ayuda sin imagen", "Ayudas.csv", "ayu_nv400_cable.png", "", "la columna Foto está vacía");
    caso("paso", "Ayudas.csv", "*NV400,0,D,2", "*NV400,0,D,4", "Sec debe ser 2");
    // Code libraries
    caso("lista de códigos", "Lib1.csv", "|ARBOL", "ARBOL",
         "la lista de códigos empieza por \"|\"");
    caso("código largo", "Lib1.csv", "|ARBOL", "|ARBOL GRANDE",
         "el aparato no admite el código \"ARBOL GRANDE\"");
    caso("código reservado", "Lib1.csv", "|ARBOL", "|ARB_L",
         "el aparato no admite el código \"ARB_L\"");
    caso("código con eñe", "Lib1.csv", "|SENAL", "|SEÑAL",
         "el aparato no admite el código \"SEÑAL\"");
    caso("demasiados códigos", "Lib1.csv", "|ARBOL", QByteArray("|A").repeated(51).constData(),
         "el aparato guarda 50 códigos");
    caso("librería", "LIB800_2.csv", "CARRETERA,1,", "CARRETERAS,1,",
         "la librería CARRETERAS no está en LIB800");
    caso("entidad", "LIB800_2.csv", "CARRETERA,1,EJE,4", "CARRETERA,1,EJE,44",
         "la entidad 44 no está en TAB2");
    caso("código con coma", "LIB800_2.csv", "CARRETERA,1,EJE,4", "CARRETERA,1,\"E,E\",4",
         "no pueden llevarlas");
}

void TestComprobaciones::una_fila_mala_se_dice_con_su_linea()
{
    QFETCH(QString, fichero);
    QFETCH(QByteArray, viejo);
    QFETCH(QByteArray, nuevo);
    QFETCH(QString, motivo);
    const Tablas_De_Prueba tablas;
    const int linea = tablas.Cambiar(fichero, viejo, nuevo);
    QVERIFY2(linea > 0, viejo.constData());
    const QStringList faltas = tablas.Faltas();
    const QString lugar = QStringLiteral("%1:%2: ").arg(fichero).arg(linea);
    bool dicha = false;
    for (const QString& f : faltas)
        dicha = dicha || (f.startsWith(lugar) && f.contains(motivo));
    QVERIFY2(dicha, qPrintable(lugar + motivo + "\n" + faltas.join('\n')));
}

void TestComprobaciones::falta_una_imagen()
{
    const Tablas_De_Prueba tablas;
    QVERIFY(QFile::remove(tablas.Datos() + "/bmphlp/ini/px7.png"));
    QCOMPARE(tablas.Faltas(), QStringList{"KRT.csv:6: falta la imagen /bmphlp/ini/px7.png"});
}

void TestComprobaciones::falta_un_fichero()
{
    const Tablas_De_Prueba tablas;
    QVERIFY(QFile::remove(tablas.Tablas() + "/TAB2.csv"));
    QVERIFY(tablas.Faltas().contains("TAB2.csv: no se puede leer"));
}

void TestComprobaciones::una_familia_sin_modelos()
{
    const Tablas_De_Prueba tablas;
    QByteArray texto = tablas.Leer("KRT.csv");
    texto.truncate(texto.indexOf("NV400"));
    tablas.Escribir("KRT.csv", texto);
    QVERIFY(tablas.Faltas().contains("KRT.csv: la familia NV400 no tiene modelos"));
}

PRUEBA(TestComprobaciones)
#include "TestComprobaciones.moc"
