#pragma once

#include <QTranslator>

/// Spanish for the texts that the widgets bring themselves (standard buttons, file dialog, child
/// windows' menus, edit menus): the toolkit's own translation, and in front of it the few texts
/// that it lacks or has wrong.
class Traductor_Qt : public QTranslator {
    Q_OBJECT
public:
    /// Reads qtbase_es.qm from `carpeta`, or else where the machine keeps its translations.
    Traductor_Qt(const QString& carpeta, QObject* padre);
    bool isEmpty() const override { return false; }
    QString translate(const char* contexto, const char* texto, const char* aclaracion,
                      int n) const override;
};
