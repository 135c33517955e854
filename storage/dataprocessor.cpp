// SPDX-License-Identifier: GPL-3.0-or-later
// Loading is in reading.cpp, saving in writing.cpp.
#include "storage/dataprocessor.h"

DataProcessor::DataProcessor(QObject *parent)
    : QObject(parent)
{
}

DataProcessor::~DataProcessor() = default;

void DataProcessor::setBasePath(const QString &path)
{
    basePath = path;
}
