#pragma once

#include "core/ui/Ventana.h"

#include <functional>
#include <memory>
#include <QApplication>
#include <QCoreApplication>
#include <QStringList>
#include <QTest>
#include <QTimer>
#include <QWidget>
#include <stdexcept>

/// The child of a window with that object name; `indice` tells the members of a control array apart
/// (their property "Index"). When it is missing the test ends with a list of those there are.
template <typename T> T& Hijo(const QObject& padre, const QString& nombre, int indice = -1)
{
    const auto hijos = padre.findChildren<T*>(nombre);
    for (T* const hijo : hijos)
        if (indice < 0 || hijo->property("Index").toInt() == indice) return *hijo;
    QStringList hay;
    const auto todos = padre.findChildren<QObject*>();
    for (const QObject* const hijo : todos)
        if (!hijo->objectName().isEmpty() && !hijo->objectName().startsWith("qt_"))
            hay << hijo->objectName() + u'(' + hijo->metaObject()->className() + u')';
    throw std::runtime_error(qPrintable(QStringLiteral("no child '%1' in '%2'; there are: %3")
                                            .arg(nombre, padre.objectName(), hay.join(' '))));
}

/// Waits until a modal window is up, then runs `hacer` on it, once. To be called before what opens
/// the window; the object lives while the test needs it and says whether the window came.
class Al_Abrirse {
public:
    explicit Al_Abrirse(std::function<void(QWidget&)> accion, const QString& nombre = {})
        : hacer(std::move(accion)), esperado(nombre)
    {
        QObject::connect(&reloj, &QTimer::timeout, &reloj, [this] {
            QWidget* const modal = QApplication::activeModalWidget();
            if (!modal || !modal->isVisible()) return;
            if (!esperado.isEmpty() && modal->objectName() != esperado) return;
            reloj.stop();
            ++veces;
            hacer(*modal);
        });
        reloj.start(5);
    }
    int veces = 0;

private:
    std::function<void(QWidget&)> hacer;
    QString esperado;
    QTimer reloj;
};

/// Unloads every dialog and lets it be destroyed: each test starts without one.
inline void Limpiar_Ventanas()
{
    while (!Ventana::Cargadas().isEmpty()) {
        Ventana* const ventana = Ventana::Cargadas().constFirst();
        ventana->Ocultar();
        ventana->Descargar();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        if (Ventana::Cargadas().contains(ventana)) delete ventana;
    }
}
