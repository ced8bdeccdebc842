// SPDX-License-Identifier: MIT
#include "store/newIdentifier.h"

#include <QUuid>

QString newIdentifier()
{
    return QUuid::createUuid().toString(QUuid::WithoutBraces).toUpper();
}
