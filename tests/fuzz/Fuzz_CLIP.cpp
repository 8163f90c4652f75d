// Any file is converted, or refused in a box and nowhere else.
#include "conversions/instrumento/ModCLIP.h"
#include "core/Ficheros.h"
#include "core/Interfaz.h"

#include <cstdint>
#include <cstdlib>
#include <QTemporaryDir>

namespace {

// Takes every box without a word.
class Interfaz_Muda : public Interfaz {
public:
    Interfaz_Muda() { Poner_Interfaz(this); }
    ~Interfaz_Muda() override { Poner_Interfaz(nullptr); }
    void Mensaje(const QString&, Icono, const QString&) override {}
    bool Preguntar(const QString&, Icono, const QString&) override { return false; }
    std::optional<QString> Pedir_Texto(const QString&, const QString&, const QString&) override
    {
        return std::nullopt;
    }
    std::optional<Fichero_Elegido> Pedir_Fichero(const Peticion_Fichero&) override
    {
        return std::nullopt;
    }
    void Pitar() override {}
    void Cursor_Ocupado(bool) override {}
    void Proceso_Abrir(const QString&, qint64) override {}
    void Proceso_Etiqueta(const QString&, qint64) override {}
    void Proceso_Avanzar(qint64) override {}
    void Proceso_Cerrar() override {}
    void Repintar() override {}
    void Dejar_Pasar() override {}
    void Arrancar(const QString&, const QStringList&) override {}
    void Ver_Texto(const QString&, bool) override {}
    void Terminar(int) override {}
};

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* datos, std::size_t largo)
{
    static const Interfaz_Muda interfaz;
    static const QTemporaryDir carpeta;
    const QString entrada = carpeta.filePath("entrada"), salida = carpeta.filePath("salida");
    QFile fichero(entrada);
    if (!fichero.open(QIODevice::WriteOnly)) std::abort();
    fichero.write(reinterpret_cast<const char*>(datos), qint64(largo));
    fichero.close();
    QString texto;
    Convertir_Alz(entrada, texto);
    if (!texto.isEmpty() && !texto.endsWith(u"\r\n")) std::abort();
    QFile::remove(salida);
    if (Convertir_Ter(entrada, salida) != QFile::exists(salida)) std::abort();
    return 0;
}
