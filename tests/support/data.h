#pragma once

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QtTest>

/// A text of tests/data.
inline QByteArray Data(const QString& name)
{
    QFile file(QFINDTESTDATA("../data/" + name));
    if (!file.open(QIODevice::ReadOnly | QIODevice::Text))
        qFatal("cannot read %s", qPrintable(name));
    return file.readAll().trimmed();
}

/// A table of tests/data: rows of texts, as an array of arrays.
inline QList<QStringList> Rows(const QString& name)
{
    QList<QStringList> rows;
    for (const QJsonValue& row : QJsonDocument::fromJson(Data(name)).array())
        rows += row.toVariant().toStringList();
    if (rows.isEmpty())
        qFatal("%s is no table", qPrintable(name));
    return rows;
}
