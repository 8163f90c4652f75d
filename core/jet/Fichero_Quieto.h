#pragma once

#include <QList>
#include <QString>
#include <QVariant>

struct sqlite3;

/// A database file that nobody writes (a backup, the delivered template), read as it lies there:
/// without locks, and without a log or journal beside it, also in a folder that can't be written.
/// Nothing is raised: what can't be read is told by the answers.
class Fichero_Quieto {
public:
    explicit Fichero_Quieto(const QString& fichero);
    ~Fichero_Quieto();
    Fichero_Quieto(const Fichero_Quieto&) = delete;
    Fichero_Quieto& operator=(const Fichero_Quieto&) = delete;

    /// First column of the first row. @return false when there is none
    bool Preguntar(const QByteArray& sql, QString& respuesta);
    /// All rows of a query. @return false when one can't be read
    bool Filas(const QByteArray& sql, QList<QVariantList>& filas);
    /// What the last question that failed met with.
    QString Fallo() const;

private:
    sqlite3* base = nullptr;
};
