// SPDX-License-Identifier: MIT
#include "TranslationFile.h"

#include "Support/QtPrinters.h"

#include <QFile>
#include <QXmlStreamReader>

using namespace Qt::StringLiterals;

TranslationFile::TranslationFile(const QString& path)
{
    QFile file(path);
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << path;
    QXmlStreamReader xml(&file);
    QString context;
    QString source;
    Message message;
    while (!xml.atEnd()) {
        const auto token = xml.readNext();
        const auto name = xml.name();
        if (token == QXmlStreamReader::EndElement && name == "message"_L1) {
            messages[{context, source}] = message;
        } else if (token != QXmlStreamReader::StartElement) {
            continue;
        } else if (name == "TS"_L1) {
            language = xml.attributes().value("language"_L1).toString();
        } else if (name == "name"_L1) {
            context = xml.readElementText();
        } else if (name == "message"_L1) {
            message = Message();
            message.isPlural = xml.attributes().hasAttribute("numerus"_L1);
        } else if (name == "source"_L1) {
            source = xml.readElementText();
        } else if (name == "translation"_L1) {
            message.isFinished = !xml.attributes().hasAttribute("type"_L1);
            if (!message.isPlural)
                message.texts.append(xml.readElementText());
        } else if (name == "numerusform"_L1) {
            message.texts.append(xml.readElementText());
        }
    }
    EXPECT_FALSE(xml.hasError()) << path << ": " << xml.errorString();
}
