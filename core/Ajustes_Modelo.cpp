#include "core/Ajustes_Modelo.h"

#include "core/ModEstTotal.h"
#include "core/Sucesos.h"

namespace {

// A combo takes no text that its list lacks.
void Fijar(Combo_Ajustes& combo, const QStringList& lista, const QString& texto)
{
    combo.lista = lista;
    if (!lista.contains(texto)) throw Error_Ejecucion(383);
    combo.texto = texto;
}

void Cargar_Modelos(Carga_Frmutils& c)
{
    QStringList& nombres = c.combos[QStringLiteral("Combo6")].lista;
    const auto base = Base::Abrir(Fichero_MDB);
    Conjunto_Registros krt = base->OpenRecordset("SELECT * FROM KRT ORDER BY NOMBRE");
    for (; !krt.Es_EOF(); krt.MoveNext()) {
        nombres << krt.Texto("Nombre");
        c.claves += QChar(SEP_LISTA) + krt.Texto("Clave");
    }
    c.claves.remove(0, 1);
}

void Fijar_Listas(Carga_Frmutils& c)
{
    for (const Ajuste& fila : Tabla_Ajustes())
        if (fila.lista)
            Fijar(c.combos[QString::fromLatin1(fila.control)], fila.lista(),
                  *std::get<Ajuste_Texto>(fila.lugar).global);
}

// An unknown model ends the load with the first one shown and the other options left empty, so that
// accepting the dialog writes them as off.
void Mostrar_Primer_Modelo(Carga_Frmutils& c)
{
    Interfaz_Actual().Mensaje(
        QStringLiteral("Se ha encontrado en el fichero ini una máquina no definida"),
        Icono::Critico);
    Combo_Ajustes& modelo = c.combos[QStringLiteral("Combo6")];
    if (modelo.lista.isEmpty()) throw Error_Ejecucion(383);
    modelo.texto = modelo.lista[0];
    // Showing another entry is picking it.
    if (const auto velocidades = Elegir_Modelo(modelo.texto))
        c.combos[QStringLiteral("Combo1")] = *velocidades;
}

void Cargar(Carga_Frmutils& c)
{
    Fijar_Listas(c);
    c.combos[QStringLiteral("Combo1")] = Lista_Velocidades(Vel_Puerto);
    Cargar_Modelos(c);
    c.casillas.fijo = Modelo_Fijo;
    Combo_Ajustes& modelo = c.combos[QStringLiteral("Combo6")];
    if (!modelo.lista.contains(Nombre_Estacion)) {
        Mostrar_Primer_Modelo(c);
        return;
    }
    modelo.texto = Nombre_Estacion;
    for (const Ajuste& fila : Tabla_Ajustes())
        if (const auto* const marca = std::get_if<Ajuste_Marca>(&fila.lugar))
            c.casillas.*marca->valor = *marca->global;
    c.animacion = En_Instalacion("bmp/verifica.gif");
}

// Columns of a model's row; nothing when the table lacks it.
std::optional<QString> Columna_De_Modelo(const QString& nombre, const QString& columna)
{
    if (!Base_Datos) throw Error_Ejecucion(91);
    Conjunto_Registros krt = Base_Datos->OpenRecordset("KRT");
    krt.Index("PrimaryKey");
    krt.Seek({nombre});
    if (krt.NoMatch()) return std::nullopt;
    return krt.Texto(columna);
}

QString Si_Existe(const QString& carpeta, const QString& foto)
{
    const QString fichero = En_Instalacion(carpeta + foto);
    return FileExist(fichero) ? fichero : QString();
}

} // namespace

Carga_Frmutils Cargar_Frmutils()
{
    Carga_Frmutils c;
    try {
        Cargar(c);
    } catch (const Error_Ejecucion&) {
        Interfaz_Actual().Mensaje(
            QStringLiteral("Se produjo un error al leer el fichero de inicialización\r"
                           "Probablemente el fichero tenga un formato incorrecto o haya sido "
                           "manipulado"),
            Icono::Critico);
    }
    return c;
}

Combo_Ajustes Lista_Velocidades(const QString& vel_puerto)
{
    Combo_Ajustes c;
    c.lista = vel_puerto.split(u',');
    c.texto = c.lista.contains(Velocidad) ? Velocidad : c.lista[0];
    return c;
}

std::optional<Combo_Ajustes> Elegir_Modelo(const QString& nombre)
{
    const auto velocidades = Columna_De_Modelo(nombre, QStringLiteral("VelPuerto"));
    if (!velocidades) return std::nullopt;
    return Lista_Velocidades(*velocidades);
}

bool Aceptar_Frmutils(Ajustes ajustes, const QString& claves, int indice_modelo)
{
    ajustes.clave = Trozo(indice_modelo + 1, claves, QChar(SEP_LISTA));
    Modelo_Fijo = ajustes.fijo;
    Nombre_Estacion = ajustes.nombre;
    Clave_Estacion = ajustes.clave;
    Cargar_Estacion(Nombre_Estacion);
    Q_EMIT Sucesos::Unico().modelo_cambiado();
    return Guardar_Configuracion(ajustes);
}

Lista_FrmKRT Leer_Estaciones()
{
    const auto base = Base::Abrir(Fichero_MDB);
    Conjunto_Registros krt = base->OpenRecordset("KRT", Tipo_Conjunto::Instantanea);
    Lista_FrmKRT lista;
    for (; !krt.Es_EOF(); krt.MoveNext()) {
        lista.nombres << krt.Texto("Nombre");
        lista.claves << krt.Texto("Clave");
        lista.fotos += QChar(SEP_LISTA) + krt.Texto("Foto");
    }
    lista.fotos.remove(0, 1);
    return lista;
}

QString Foto_De_Entrada(const Lista_FrmKRT& lista, int indice)
{
    return Si_Existe(QStringLiteral("bmphlp/"), Trozo(indice + 1, lista.fotos, QChar(SEP_LISTA)));
}

bool Aceptar_FrmKRT(const Lista_FrmKRT& lista, int indice)
{
    if (indice < 0 || indice >= lista.nombres.size()) {
        Interfaz_Actual().Pitar();
        return false;
    }
    Clave_Estacion = lista.claves[indice];
    Nombre_Estacion = lista.nombres[indice];
    Q_EMIT Sucesos::Unico().modelo_cambiado();
    Cargar_Estacion(Clave_Estacion);
    return true;
}

QString Cargar_Foto_Estacion(const QString& valor)
{
    const auto foto = Columna_De_Modelo(valor, QStringLiteral("Fotoini"));
    return foto ? Si_Existe(QStringLiteral("bmphlp/ini/"), *foto) : QString();
}
