#pragma once

#include <QObject>

#include <memory>

namespace dravik {

enum class ColourScheme { Untold, Light, Dark };

// What the desktop says of the colours that its user wants, besides the palette that it hands to the toolkit.
class SchemeSource : public QObject {
    Q_OBJECT
public:
    [[nodiscard]] virtual ColourScheme Scheme() const = 0;

signals:
    void Changed();
};

// The word of the desktop at hand: of its portal, or of its registry. Waits a moment for a portal's first answer; one that
// comes later is a change. None where the toolkit follows the desktop by itself.
std::unique_ptr<SchemeSource> DesktopScheme();

} // namespace dravik
