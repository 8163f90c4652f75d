#include "core/Ayuda.h"

#include "core/ModEstTotal.h"

int Paso_Ayuda = 1;

namespace {
constexpr int ANCHO_TEXTO = 80;
constexpr int ANCHO_FOTO = 50;
} // namespace

QList<Paso> Leer_Pasos(const QString& tipo_ope, const QString& ope)
{
    const auto base = Base::Abrir(Fichero_MDB);
    // The model's name, not its family: help is per model.
    Recorrido r = base->Recorrer("SELECT Texto,Foto FROM Ayudas WHERE TipOpe = ? AND OPE = ? AND "
                                 "Maquina = ? ORDER By Sec",
                                 {tipo_ope, ope, Nombre_Estacion});
    QList<Paso> pasos;
    while (r.Siguiente())
        pasos << Paso{r.Texto(0).left(ANCHO_TEXTO), r.Texto(1).left(ANCHO_FOTO)};
    return pasos;
}

QList<Paso> Abrir_Pasos(const QString& tipo_ope, const QString& ope)
{
    QList<Paso> pasos = Leer_Pasos(tipo_ope, ope);
    if (pasos.isEmpty())
        Interfaz_Actual().Mensaje(
            QStringLiteral("No hay ayuda disponible en esta máquina para esta acción"),
            Icono::Exclamacion);
    return pasos;
}

Vista_Paso Ver_Paso(const QList<Paso>& pasos, int n)
{
    Vista_Paso v;
    v.atras = n > 1;
    v.fin = n > pasos.size();
    if (v.fin || n < 1) return v;
    v.texto = Basico::Trim(pasos[n - 1].texto);
    const QString foto = En_Instalacion(QStringLiteral("bmphlp/") + pasos[n - 1].foto);
    if (FileExist(foto)) v.foto = foto;
    return v;
}

void Mostrar_Ayuda_Web(const QString& clave)
{
    Interfaz_Actual().Arrancar(En_Instalacion("ayudaweb.exe"),
                               {En_Instalacion("Ayuda") + u',' + clave + QStringLiteral(".htm")});
}
