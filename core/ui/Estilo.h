#pragma once

class QApplication;

/// Gives the program its looks and its language: style, colours, Spanish widget texts and Spanish
/// number forms, whatever the machine is set to.
void Aplicar_Estilo(QApplication& aplicacion);
