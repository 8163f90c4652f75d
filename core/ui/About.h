#pragma once

#include "core/ui/Ventana.h"

class QLabel;

/// Version of the program and the addresses of the offices.
class About : public Ventana {
    Q_OBJECT
public:
    About();

private:
    void Mostrar_Oficina(int indice);

    QLabel *lblDireccion, *lblPoblacion, *lblTelefono, *lblFax;
};

/// "Versión " and the three numbers of the program's version.
QString Texto_Version();
