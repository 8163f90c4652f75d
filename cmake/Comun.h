// Precompiled: what nearly every unit includes.
#pragma once
#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <QByteArray>
#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QHash>
#include <QList>
#include <QObject>
#include <QString>
#include <QStringList>
#include <QVariant>
#include <string>
#include <vector>
