#include "device/dh/internal/xmldevicelist.h"

#include "device/logging.h"

#include <QCoreApplication>
#include <QXmlStreamReader>

#include <algorithm>
#include <utility>

namespace {

constexpr QLatin1StringView rootName("deviceList");
constexpr QLatin1StringView deviceName("device");

/// Lists are three elements deep; what somebody adds to one may be a little deeper.
constexpr int maximumDepth = 16;

class XmlListReader
{
public:
    explicit XmlListReader(QIODevice &file) : m_reader(&file) {}

    DeviceListContents read()
    {
        if (!readRoot() && m_contents.refusal.isEmpty())
            refuseUnparsable();
        return std::move(m_contents);
    }

private:
    bool readRoot()
    {
        while (m_reader.readNext() != QXmlStreamReader::StartElement) {
            if (m_reader.atEnd() || m_reader.isDTD())
                return false;
        }
        if (m_reader.name() != rootName) {
            constexpr qsizetype shownLength = 64;
            const QString name = m_reader.name().left(shownLength).toString();
            qCWarning(logDevice).noquote().nospace() << "Root element is not 'deviceList': " << name;
            return m_contents.refuse(
                QCoreApplication::translate("DeviceList", "根元素不是 deviceList：%1").arg(name));
        }
        while (nextChild()) {
            if (m_reader.name() == deviceName ? !readDevice() : !passOver())
                return false;
        }
        // What stands behind the root must be well-formed too.
        while (!m_reader.atEnd())
            m_reader.readNext();
        return !m_reader.hasError();
    }

    bool readDevice()
    {
        DeviceListLine line;
        line.number = static_cast<int>(m_reader.lineNumber());
        while (nextChild()) {
            const auto &names = listColumnNames();
            const auto found = std::find_if(names.begin(), names.end(), [this](const ListColumnName &name) {
                return m_reader.name() == name.element;
            });
            if (found == names.end()) {
                if (!passOver())
                    return false;
                continue;
            }
            const auto column = static_cast<ListColumn>(found - names.begin());
            line[column] = listText(column, m_reader.readElementText());
        }
        return !m_reader.hasError() && m_contents.add(std::move(line));
    }

    /// Goes to the next element inside the present one. False behind the last one, and after a fault.
    bool nextChild()
    {
        while (!m_reader.atEnd()) {
            m_reader.readNext();
            if (m_reader.isStartElement())
                return true;
            if (m_reader.isEndElement())
                return false;
        }
        return false;
    }

    /// Leaves an element out, with all that is in it.
    bool passOver()
    {
        int depth = 1;
        while (depth > 0 && depth <= maximumDepth && !m_reader.atEnd()) {
            m_reader.readNext();
            if (m_reader.isStartElement())
                ++depth;
            else if (m_reader.isEndElement())
                --depth;
        }
        return depth == 0;
    }

    void refuseUnparsable()
    {
        const QString reason = m_reader.hasError()
                                   ? m_reader.errorString()
                                   : QStringLiteral("a document type, or elements too deep in each other");
        qCWarning(logDevice).noquote()
            << "Failed to parse XML file:" << reason << "in line" << m_reader.lineNumber();
        m_contents.refuse(
            QCoreApplication::translate("DeviceList", "第 %1 行不是有效的XML").arg(m_reader.lineNumber()));
    }

    QXmlStreamReader m_reader;
    DeviceListContents m_contents;
};

} // namespace

QByteArray xmlOf(const std::vector<DeviceListLine> &lines)
{
    QByteArray text = "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<deviceList>\n";
    for (const DeviceListLine &line : lines) {
        text += "  <device>\n";
        for (std::size_t column = 0; column < line.values.size(); ++column) {
            const QLatin1StringView name = listColumnNames().at(column).element;
            text += QByteArrayLiteral("    <") + name.data() + '>' + line.values.at(column).toUtf8() + "</" +
                    name.data() + ">\n";
        }
        text += "  </device>\n";
    }
    return text + "</deviceList>\n";
}

DeviceListContents readXml(QIODevice &file)
{
    return XmlListReader(file).read();
}
