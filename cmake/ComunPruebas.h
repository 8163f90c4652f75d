// Precompiled for the tests.
#pragma once
#include "Comun.h"
#include <QTemporaryDir>
#include <QTest>
