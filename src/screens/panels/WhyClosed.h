#pragma once

#include <functional>
#include <initializer_list>
#include <QString>

class QAction;
class QWidget;

namespace dravik {

// Has each of these tell in its tooltip, and to a screen reader in its description, why it is closed, for as long as it is: behind the
// words that it has there anyway, which stay. `why` gives the reason in plain words whenever one of them is closed and once more when
// its tooltip comes up; nothing tells none.
void TellWhyClosed(std::initializer_list<QWidget*> parts, const std::function<QString()>& why);
void TellWhyClosed(std::initializer_list<QWidget*> parts, const QString& why);
// The same for an entry of a menu, whose menu shows tooltips from then on.
void TellWhyClosed(QAction* item, const std::function<QString()>& why);

// What a part tells now; nothing where it is open, or where nobody knows.
QString ReasonOf(const QObject& part);

} // namespace dravik
