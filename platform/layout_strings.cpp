// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#include "platform/layout_strings_p.h"

#include "platform/bundle.h"

#include <QXmlStreamReader>
#include <QXmlStreamWriter>

namespace platform {

namespace {

// Keys and names of operations are no texts, though Designer offers them to translators by default.
bool isText(const QString &property)
{
    return !property.startsWith(QLatin1String("bind_")) && property != QLatin1String("action") &&
           property != QLatin1String("delegate");
}

// Copies the <string> element under the reader, translated unless it says that it is not to be.
void translateText(QXmlStreamReader &reader, QXmlStreamWriter &writer, const Bundle &bundle,
                   const QByteArray &context)
{
    const QXmlStreamAttributes attributes = reader.attributes();
    writer.writeCurrentToken(reader);
    QString text = reader.readElementText();
    const bool isFixed = attributes.value(QLatin1String("notr")) == QLatin1String("true");
    if (!isFixed && !text.isEmpty()) {
        const QByteArray comment = attributes.value(QLatin1String("comment")).toUtf8();
        text = bundle.translate(context.constData(), text.toUtf8().constData(),
                                comment.isEmpty() ? nullptr : comment.constData());
    }
    writer.writeCharacters(text);
    writer.writeEndElement();
}

} // namespace

QByteArray translatedForm(const QByteArray &form, const Bundle &bundle, QString *error)
{
    QByteArray translated;
    QXmlStreamReader reader(form);
    QXmlStreamWriter writer(&translated);
    QByteArray context;
    QString property; // the one under the reader
    int depth = 0;
    while (!reader.atEnd()) {
        reader.readNext();
        if (reader.isStartElement() && depth == 1 && reader.name() == QLatin1String("class")) {
            const QString name = reader.readElementText();
            context = name.toUtf8();
            writer.writeTextElement(QStringLiteral("class"), name);
        } else if (reader.isStartElement() && reader.name() == QLatin1String("string") && isText(property)) {
            translateText(reader, writer, bundle, context);
        } else if (!reader.hasError() && reader.tokenType() != QXmlStreamReader::EndDocument) {
            if (reader.name() == QLatin1String("property"))
                property = reader.attributes().value(QLatin1String("name")).toString(); // none at its end
            depth += reader.isStartElement() ? 1 : reader.isEndElement() ? -1 : 0;
            writer.writeCurrentToken(reader);
        }
    }
    if (reader.hasError()) {
        *error = QStringLiteral("line %1: %2").arg(reader.lineNumber()).arg(reader.errorString());
        return {};
    }
    return translated;
}

} // namespace platform
