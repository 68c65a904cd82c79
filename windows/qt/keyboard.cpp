// Recognises the repeats that Qt marks, and those that it misses on X11: there a repeat is a release and a press with
// the same time stamp, and Qt marks the press only if both events arrive together.

#include "windows/qt/keyboard.h"

#include <QAbstractButton>
#include <QApplication>
#include <QKeyEvent>
#include <QLineEdit>

namespace tessaly {

namespace {

// Returns whether pressing the key would click, pick or run something, and so must not repeat.
bool mustnotrepeat(int key) {
    const QWidget* const focused = QApplication::focusWidget();
    const auto* const button = qobject_cast<const QAbstractButton*>(focused);
    switch (key) {
    case Qt::Key_Space: return button ? !button->autoRepeat() : !qobject_cast<const QLineEdit*>(focused);
    case Qt::Key_Return:
    case Qt::Key_Enter: return !button || !button->autoRepeat();
    case Qt::Key_Escape: return true;
    default: return key >= Qt::Key_F1 && key <= Qt::Key_F35;
    }
}

bool waskey = false;  // the last press

class keyfilter : public QObject {
  public:
    using QObject::QObject;

    bool eventFilter(QObject*, QEvent* event) override {
        if (event->type() == QEvent::MouseButtonPress) waskey = false;
        if (event->type() == QEvent::KeyRelease) release(*static_cast<QKeyEvent*>(event));
        if (event->type() != QEvent::KeyPress && event->type() != QEvent::ShortcutOverride) return false;
        waskey = true;
        const auto& press = *static_cast<QKeyEvent*>(event);
        if (!repeated(press) || !mustnotrepeat(press.key())) return false;
        event->accept();  // an accepted ShortcutOverride is followed by a KeyPress, which is dropped here, too
        return true;
    }

  private:
    void release(const QKeyEvent& event) {
        key = event.key();
        time = event.timestamp();
    }
    bool repeated(const QKeyEvent& press) const {
        return press.isAutoRepeat() || (time != 0 && press.key() == key && press.timestamp() == time);
    }

    int key = 0;       // released last
    quint64 time = 0;  // of its release, ms; 0: unknown
};

}  // namespace

void filterkeys() {
    static keyfilter* const filter = new keyfilter(qApp);
    qApp->installEventFilter(filter);
}

bool lastpresswaskey() { return waskey; }

}  // namespace tessaly
