#include "tests/apoyo/Base_De_Prueba.h"

#include <QDir>
#include <QFile>

Base_De_Prueba::Base_De_Prueba()
{
    Ruta_Aplicacion = QDir(carpeta.path()).canonicalPath();
    for (const char* c : {"MDB", "DAT", "LOG", "bmp", "bmphlp", "bmphlp/ini", "hlp", "ficheros"})
        QDir(Ruta_Aplicacion).mkpath(QString::fromLatin1(c));
    Ruta_MDB = Ruta("MDB");
    Fichero_MDB = Ruta("MDB/EstTotal.mdb");
    Base_Datos = Base::Crear(Fichero_MDB);
}

Base_De_Prueba::~Base_De_Prueba()
{
    Base_Datos.reset();
}

QString Base_De_Prueba::Ruta(const QString& relativa) const
{
    return QDir(carpeta.path()).canonicalPath() + u'/' + relativa;
}

void Base_De_Prueba::Fila(const QString& tabla,
                          const QList<std::pair<QString, QVariant>>& valores) const
{
    Conjunto_Registros rs = Base_Datos->OpenRecordset(tabla);
    rs.AddNew();
    for (const auto& [campo, valor] : valores)
        rs.Poner(campo, valor);
    rs.Update();
}

QStringList Base_De_Prueba::Columna(const QString& sql) const
{
    QStringList textos;
    Recorrido r = Base_Datos->Recorrer(sql);
    while (r.Siguiente())
        textos << r.Texto(0);
    return textos;
}

void Base_De_Prueba::Escribir(const QString& relativa, const QByteArray& bytes) const
{
    QFile f(Ruta(relativa));
    if (!f.open(QIODevice::WriteOnly) || f.write(bytes) != bytes.size())
        qFatal("Test file not written: %s", qPrintable(f.fileName()));
}

QByteArray Base_De_Prueba::Leer(const QString& relativa) const
{
    QFile f(Ruta(relativa));
    return f.open(QIODevice::ReadOnly) ? f.readAll() : QByteArray();
}
