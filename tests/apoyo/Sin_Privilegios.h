#pragma once

#include <QString>

/// Runs what follows as a user who may read `carpeta` but write nothing that this one made there:
/// a read-only install directory, also when the tests run as the superuser.
class Sin_Privilegios {
public:
    explicit Sin_Privilegios(const QString& carpeta);
    ~Sin_Privilegios();
    Sin_Privilegios(const Sin_Privilegios&) = delete;
    Sin_Privilegios& operator=(const Sin_Privilegios&) = delete;

private:
    QString carpeta;
    bool superusuario = false;
};
