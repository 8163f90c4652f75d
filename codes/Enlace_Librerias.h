#pragma once

/// Joins the libraries to the line: what they ask for goes to the sending and receiving
/// conversations, and what these receive comes back to the store. Windows and command line call it
/// once, behind setting their own dialogs.
void Conectar_Librerias();
