#include "export/nivel/Cargar_Nivel.h"

#include "formats/Campo_Nivel.h"
#include "formats/Nombre_Formato.h"

namespace {

void Leer_Lineas(const Origen_Exportar& s, Datos_Nivel& nivel)
{
    Recorrido registros =
        s.bd.Recorrer("SELECT Datos FROM Registros WHERE ID = ? Order by Secuencia", {s.id});
    while (registros.Siguiente())
        nivel.lineas << registros.Texto(0);
}

// A level format may be called as one of another family, and a field as one of its fields.
void Leer_Mitades(const Origen_Exportar& s, Datos_Nivel& nivel)
{
    Recorrido campos = s.bd.Recorrer(
        "SELECT F.Campo,F.Sec,C.Digitos,C.Caracter from Campos C,Formatos2 F Where "
        "trim(C.Campo)=trim(left(F.Campo,40)) AND c.ID=left(right(F.campo,2),1) AND F.Maquina = '" +
        s.maquina + "' AND C.Maquina = F.Maquina AND F.Nombre = " + Literal_Formato(s.formato) +
        " Group by f.Campo,c.caracter,c.Digitos,f.sec Order by left(right(F.campo,2),1),F.Sec");
    while (campos.Siguiente()) {
        const QString campo = campos.Texto(0);
        const bool cabecera = campo.right(2).startsWith(Clave_De(Mitad_Nivel::Cabecera));
        bool con_numero = false;
        const int numero = campos.Texto(3).toInt(&con_numero);
        (cabecera ? nivel.cabecera : nivel.detalle)
            .push_back(
                {Nombre_Campo_Nivel(campo), con_numero ? numero : -1, int(campos.Entero(2))});
    }
}

void Llenar_Filas(const Origen_Exportar& s, Datos_Formateados& datos)
{
    const Datos_Nivel& nivel = datos.nivel;
    for (const Campo_De_Informe& campo : nivel.detalle)
        datos.campos << campo.nombre;
    datos.filas.resize(nivel.detalle.size());
    Marcador marcador(s.avance, nivel.lineas.size());
    for (qsizetype r = 0; r < nivel.lineas.size(); ++r) {
        if (Es_Medicion_Nivel(nivel.Tipo(r)))
            for (std::size_t c = 0; c < nivel.detalle.size(); ++c)
                datos.filas[c].push_back(nivel.Valor(r, nivel.detalle[c]));
        marcador.Paso();
    }
    marcador.Terminar();
}

} // namespace

Datos_Formateados Cargar_Nivel(const Origen_Exportar& origen)
{
    Datos_Formateados datos;
    Leer_Lineas(origen, datos.nivel);
    Leer_Mitades(origen, datos.nivel);
    Llenar_Filas(origen, datos);
    return datos;
}
