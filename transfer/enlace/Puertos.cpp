#include "transfer/enlace/Puertos.h"

#include "core/ModEstTotal.h"
#include "core/Perfil.h"

#include <QSerialPortInfo>

QString Dispositivo_De_Puerto(int numero)
{
    if (numero < 1) return {};
    const QString nombre = QStringLiteral("COM%1").arg(numero);
#ifdef Q_OS_WIN
    return nombre;
#else
    QString del_fichero = Perfil::Leer(En_Instalacion("Puertos.ini"), "PUERTOS", nombre, QString());
    if (!del_fichero.isEmpty()) return del_fichero;
    const auto presentes = QSerialPortInfo::availablePorts();
    return numero <= presentes.size() ? presentes[numero - 1].systemLocation() : QString();
#endif
}

QString Texto_Ajustes_Puerto()
{
    return Velocidad + u',' + Paridad.left(1) + u',' + Bits_Datos + u',' + Bits_Parada;
}
