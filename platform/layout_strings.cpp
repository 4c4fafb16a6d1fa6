// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#include "platform/layout_strings_p.h"

#include "platform/bundle.h"

#include <QXmlStreamReader>
#include <QXmlStreamWriter>

namespace platform {

namespace {

// Copies the element under the reader, a text that can be translated, with its translation.
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
    int depth = 0;
    while (!reader.atEnd()) {
        reader.readNext();
        if (reader.isStartElement() && depth == 1 && reader.name() == QLatin1String("class")) {
            const QString name = reader.readElementText();
            context = name.toUtf8();
            writer.writeTextElement(QStringLiteral("class"), name);
        } else if (reader.isStartElement() && reader.name() == QLatin1String("string")) {
            translateText(reader, writer, bundle, context);
        } else if (!reader.hasError() && reader.tokenType() != QXmlStreamReader::EndDocument) {
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
