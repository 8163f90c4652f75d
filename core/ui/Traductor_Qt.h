#pragma once

#include <QTranslator>

/// Spanish for the texts that the widgets bring themselves (standard buttons, file dialog, child
/// windows' menus, edit menus), so that they do not hang on what the machine has installed.
class Traductor_Qt : public QTranslator {
    Q_OBJECT
public:
    using QTranslator::QTranslator;
    bool isEmpty() const override { return false; }
    QString translate(const char* contexto, const char* texto, const char* aclaracion,
                      int n) const override;
};
