#include "tests/fallos/Llamadas.h"

#include <array>
#include <cerrno>
#include <cstdarg>
#include <cstdio>
#include <cstring>
#include <dlfcn.h>
#include <fcntl.h>
#include <QFile>
#include <sys/types.h>
#include <unistd.h>

namespace {

struct Trampa {
    bool armada = false;
    std::array<char, 4096> carpeta{};
    unsigned clases = 0;
    int n = 0, error = 0, contadas = 0;
    bool seguidas = false;
} trampa;

bool Dentro(const char* ruta)
{
    return ruta &&
           std::strncmp(ruta, trampa.carpeta.data(), std::strlen(trampa.carpeta.data())) == 0;
}

bool Dentro(int descriptor)
{
    std::array<char, 64> enlace{};
    std::array<char, 4096> ruta{};
    std::snprintf(enlace.data(), enlace.size(), "/proc/self/fd/%d", descriptor);
    return readlink(enlace.data(), ruta.data(), ruta.size() - 1) > 0 && Dentro(ruta.data());
}

// @return true when this call has to fail; errno says why
template <class Donde> bool Falla(Llamadas::Clase clase, Donde donde)
{
    if (!trampa.armada || !(trampa.clases & clase)) return false;
    const int antes = errno;
    const bool cuenta = Dentro(donde);
    errno = antes;
    if (!cuenta) return false;
    const int k = ++trampa.contadas;
    if (k != trampa.n && !(trampa.seguidas && trampa.n > 0 && k > trampa.n)) return false;
    errno = trampa.error;
    return true;
}

template <class Funcion> Funcion* Verdadera(Funcion*, const char* nombre)
{
    return reinterpret_cast<Funcion*>(dlsym(RTLD_NEXT, nombre));
}

mode_t Modo(int banderas, va_list resto)
{
    return banderas & (O_CREAT | O_TMPFILE) ? va_arg(resto, mode_t) : 0;
}

} // namespace

void Llamadas::Armar(const QString& carpeta, unsigned clases, int n, int error, bool seguidas)
{
    trampa = {};
    std::snprintf(trampa.carpeta.data(), trampa.carpeta.size(), "%s",
                  QFile::encodeName(carpeta).constData());
    trampa.clases = clases;
    trampa.n = n;
    trampa.error = error;
    trampa.seguidas = seguidas;
    trampa.armada = true;
}

int Llamadas::Desarmar()
{
    trampa.armada = false;
    return trampa.contadas;
}

#define INTERPUESTA(nombre) static auto* const verdadera = Verdadera(&::nombre, #nombre)

extern "C" {

int open(const char* ruta, int banderas, ...)
{
    INTERPUESTA(open);
    va_list resto;
    va_start(resto, banderas);
    const mode_t modo = Modo(banderas, resto);
    va_end(resto);
    return Falla(Llamadas::ABRIR, ruta) ? -1 : verdadera(ruta, banderas, modo);
}

int open64(const char* ruta, int banderas, ...)
{
    INTERPUESTA(open64);
    va_list resto;
    va_start(resto, banderas);
    const mode_t modo = Modo(banderas, resto);
    va_end(resto);
    return Falla(Llamadas::ABRIR, ruta) ? -1 : verdadera(ruta, banderas, modo);
}

int openat(int carpeta, const char* ruta, int banderas, ...)
{
    INTERPUESTA(openat);
    va_list resto;
    va_start(resto, banderas);
    const mode_t modo = Modo(banderas, resto);
    va_end(resto);
    return Falla(Llamadas::ABRIR, ruta) ? -1 : verdadera(carpeta, ruta, banderas, modo);
}

int openat64(int carpeta, const char* ruta, int banderas, ...)
{
    INTERPUESTA(openat64);
    va_list resto;
    va_start(resto, banderas);
    const mode_t modo = Modo(banderas, resto);
    va_end(resto);
    return Falla(Llamadas::ABRIR, ruta) ? -1 : verdadera(carpeta, ruta, banderas, modo);
}

ssize_t write(int d, const void* bytes, size_t n)
{
    INTERPUESTA(write);
    return Falla(Llamadas::ESCRIBIR, d) ? -1 : verdadera(d, bytes, n);
}

ssize_t pwrite(int d, const void* bytes, size_t n, off_t donde)
{
    INTERPUESTA(pwrite);
    return Falla(Llamadas::ESCRIBIR, d) ? -1 : verdadera(d, bytes, n, donde);
}

ssize_t pwrite64(int d, const void* bytes, size_t n, off64_t donde)
{
    INTERPUESTA(pwrite64);
    return Falla(Llamadas::ESCRIBIR, d) ? -1 : verdadera(d, bytes, n, donde);
}

int ftruncate64(int d, off64_t largo)
{
    INTERPUESTA(ftruncate64);
    return Falla(Llamadas::ESCRIBIR, d) ? -1 : verdadera(d, largo);
}

int fsync(int d)
{
    INTERPUESTA(fsync);
    return Falla(Llamadas::SINCRONIZAR, d) ? -1 : verdadera(d);
}

int fdatasync(int d)
{
    INTERPUESTA(fdatasync);
    return Falla(Llamadas::SINCRONIZAR, d) ? -1 : verdadera(d);
}

int rename(const char* de, const char* a)
{
    INTERPUESTA(rename);
    return Falla(Llamadas::RENOMBRAR, a) ? -1 : verdadera(de, a);
}

int renameat(int d1, const char* de, int d2, const char* a)
{
    INTERPUESTA(renameat);
    return Falla(Llamadas::RENOMBRAR, a) ? -1 : verdadera(d1, de, d2, a);
}

int renameat2(int d1, const char* de, int d2, const char* a, unsigned banderas)
{
    INTERPUESTA(renameat2);
    return Falla(Llamadas::RENOMBRAR, a) ? -1 : verdadera(d1, de, d2, a, banderas);
}
}
