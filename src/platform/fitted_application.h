#pragma once

#include <QApplication>
#include <QByteArray>
#include <QRectF>
#include <QSizeF>
#include <optional>

namespace quarvel {

/// The part of its present scale, above 0 and at most 1, at which a window with an inside of `client`, in its
/// frame and in the middle of `screen`, lies within `work`, the part of the screen that panels leave. All in
/// logical pixels of the present `scale`, 1 for 100 %. Below 100 % nothing is lowered: the toolkit does not
/// paint whole widgets there.
[[nodiscard]] double fittingPart(QSizeF client, const QRectF& screen, const QRectF& work, double scale);

/// The application object. Windows whose size is fixed may be larger than the screen at the scale that the
/// desktop has chosen; then the whole program takes a smaller one.
class FittedApplication {
public:
    /// `argc` and `argv` as main() has them; both outlive this.
    FittedApplication(int& argc, char** argv);

    /// Sees to it that a window with an inside of `largest` (logical pixels) fits the primary screen, on
    /// which all windows open. The toolkit takes its scale from the environment and only once, so that a
    /// smaller one needs a second application object: this comes before anything that hangs on the first.
    void fit(QSizeF largest);

    [[nodiscard]] QApplication& operator*() { return *application_; }

private:
    int& argc_;
    char** argv_;
    QByteArray startId_; ///< by which the desktop knows this start; the first object takes it away
    std::optional<QApplication> application_;
};

} // namespace quarvel
