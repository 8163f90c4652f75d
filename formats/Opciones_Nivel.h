#pragma once

/// The check boxes of the level's format dialog that its report looks at.
struct Opciones_Nivel {
    bool anillo = false;     ///< `ChkAnillo`
    bool nivelacion = false; ///< `ChkNivelacion`
};
