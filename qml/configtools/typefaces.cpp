#include "typefaces.h"

#include <QFont>
#include <QFontDatabase>

namespace {

/// Loads a packaged font file and returns its family.
QString loadFamily(const QString &file)
{
    const int id = QFontDatabase::addApplicationFont(QStringLiteral(":/qt/qml/configtools/fonts/") + file);
    return QFontDatabase::applicationFontFamilies(id).value(0);
}

} // namespace

Typefaces::Typefaces(QObject *parent)
    : QObject(parent), m_text(QStringLiteral("Inter")),
      m_figures(loadFamily(QStringLiteral("inter-figures-regular.otf"))),
      m_icons(loadFamily(QStringLiteral("lucide.ttf")))
{
    loadFamily(QStringLiteral("inter-figures-semibold.otf"));
    const QString chinese = QStringLiteral("Noto Sans CJK SC");
    QFont::insertSubstitution(m_text, chinese);
    QFont::insertSubstitutions(m_figures, {m_text, chinese});
}
