#include "core/ui/Traductor_Qt.h"

#include <QHash>

namespace {

struct Par {
    const char* texto;
    const char16_t* espanol;
};

// The same English words mean the same in every context, so the table has none.
constexpr Par PARES[] = {
    // Standard buttons
    {"OK", u"Aceptar"},
    {"&OK", u"&Aceptar"},
    {"Cancel", u"Cancelar"},
    {"&Cancel", u"&Cancelar"},
    {"&Yes", u"&Sí"},
    {"&No", u"&No"},
    {"Yes", u"Sí"},
    {"Close", u"Cerrar"},
    {"&Close", u"&Cerrar"},
    {"Save", u"Guardar"},
    {"&Save", u"&Guardar"},
    {"Open", u"Abrir"},
    {"&Open", u"&Abrir"},
    {"Help", u"Ayuda"},
    {"Apply", u"Aplicar"},
    {"Discard", u"Descartar"},
    {"Retry", u"Reintentar"},
    {"Ignore", u"Omitir"},
    {"Abort", u"Anular"},
    // File dialog
    {"Look in:", u"Buscar en:"},
    {"File &name:", u"&Nombre de archivo:"},
    {"Files of type:", u"Archivos de tipo:"},
    {"&Choose", u"&Elegir"},
    {"Choose", u"Elegir"},
    {"Directory:", u"Carpeta:"},
    {"Directories", u"Carpetas"},
    {"Find Directory", u"Buscar carpeta"},
    {"Open Files", u"Abrir archivos"},
    {"Save As", u"Guardar como"},
    {"Back", u"Atrás"},
    {"Go back", u"Ir atrás"},
    {"Alt+Left", u"Alt+Izquierda"},
    {"Forward", u"Adelante"},
    {"Go forward", u"Ir adelante"},
    {"Alt+Right", u"Alt+Derecha"},
    {"Parent Directory", u"Carpeta superior"},
    {"Go to the parent directory", u"Ir a la carpeta superior"},
    {"Alt+Up", u"Alt+Arriba"},
    {"Create New Folder", u"Crear carpeta"},
    {"Create a New Folder", u"Crear una carpeta nueva"},
    {"List View", u"Lista"},
    {"Change to list view mode", u"Ver como lista"},
    {"Detail View", u"Detalles"},
    {"Change to detail view mode", u"Ver con detalles"},
    {"Sidebar", u"Lugares"},
    {"List of places and bookmarks", u"Lugares y marcadores"},
    {"Files", u"Archivos"},
    {"&New Folder", u"&Carpeta nueva"},
    {"New Folder", u"Carpeta nueva"},
    {"&Rename", u"Cambiar &nombre"},
    {"&Delete", u"&Eliminar"},
    {"Delete", u"Eliminar"},
    {"Show &hidden files", u"Ver archivos &ocultos"},
    {"All Files (*)", u"Todos los archivos (*)"},
    {"Computer", u"Equipo"},
    {"My Computer", u"Equipo"},
    {"Drive", u"Unidad"},
    {"File", u"Archivo"},
    {"Folder", u"Carpeta"},
    {"%1 File", u"Archivo %1"},
    {"File Folder", u"Carpeta"},
    {"Shortcut", u"Acceso directo"},
    {"Alias", u"Alias"},
    {"Unknown", u"Desconocido"},
    {"Name", u"Nombre"},
    {"Size", u"Tamaño"},
    {"Type", u"Tipo"},
    {"Kind", u"Tipo"},
    {"Date Modified", u"Modificado"},
    {"Recent Places", u"Lugares recientes"},
    {"Remove", u"Quitar"},
    {"Show ", u"Mostrar "},
    {"%1\nDirectory not found.\nPlease verify the correct directory name was given.",
     u"%1\nNo se encuentra la carpeta.\nCompruebe que el nombre es correcto."},
    {"%1\nFile not found.\nPlease verify the correct file name was given.",
     u"%1\nNo se encuentra el archivo.\nCompruebe que el nombre es correcto."},
    {"%1 already exists.\nDo you want to replace it?", u"%1 ya existe.\n¿Desea reemplazarlo?"},
    {"'%1' is write protected.\nDo you want to delete it anyway?",
     u"'%1' está protegido contra escritura.\n¿Desea eliminarlo de todos modos?"},
    {"Are you sure you want to delete '%1'?", u"¿Seguro que desea eliminar '%1'?"},
    {"Could not delete directory.", u"No se ha podido eliminar la carpeta."},
    {"Invalid filename", u"Nombre de archivo no válido"},
    // Edit menus
    {"&Undo", u"&Deshacer"},
    {"&Redo", u"&Rehacer"},
    {"Cu&t", u"Cor&tar"},
    {"&Copy", u"&Copiar"},
    {"&Paste", u"&Pegar"},
    {"Select All", u"Seleccionar todo"},
    {"Copy &Link Location", u"Copiar dirección del en&lace"},
    // Child windows
    {"&Restore", u"&Restaurar"},
    {"&Move", u"&Mover"},
    {"&Size", u"&Tamaño"},
    {"Mi&nimize", u"Mi&nimizar"},
    {"Ma&ximize", u"Ma&ximizar"},
    {"Stay on &Top", u"Siempre &visible"},
    {"Minimize", u"Minimizar"},
    {"Maximize", u"Maximizar"},
    {"Restore", u"Restaurar"},
    {"Restore Down", u"Restaurar"},
    {"Unshade", u"Desplegar"},
    {"Shade", u"Plegar"},
    {"Menu", u"Menú"},
};

QHash<QByteArray, QString> Tabla()
{
    QHash<QByteArray, QString> tabla;
    for (const auto& [texto, espanol] : PARES)
        tabla.insert(texto, QString::fromUtf16(espanol));
    return tabla;
}

} // namespace

QString Traductor_Qt::translate(const char*, const char* texto, const char*, int) const
{
    static const QHash<QByteArray, QString> tabla = Tabla();
    return tabla.value(QByteArray(texto));
}
