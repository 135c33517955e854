// SPDX-License-Identifier: GPL-3.0-or-later
#include "host/demo/demo.h"

#include <QFile>

using namespace Qt::Literals::StringLiterals;

namespace Host {

QByteArray sampleLogbook()
{
    QFile sample(u":/demo/voltbok.xml"_s);
    return sample.open(QFile::ReadOnly) ? sample.readAll() : QByteArray();
}

} // namespace Host
