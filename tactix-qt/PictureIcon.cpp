#include "tactix-qt/PictureIcon.h"

#include <QByteArray>
#include <QFile>
#include <QIconEngine>
#include <QPainter>
#include <QSvgRenderer>

// Rcc's initializer is out of any namespace. A static library keeps its resources only where somebody names them.
static void InitPictures() { Q_INIT_RESOURCE(TactixPictures); }

namespace tactix::qt {

namespace {

/// What the pictures have in place of the palette's colour.
constexpr const char* Ink = "#202020";

class PictureEngine final : public QIconEngine {
 public:
  PictureEngine(QByteArray svg, const QPalette& palette)
      : ink_(palette.color(QPalette::Active, QPalette::ButtonText)),
        disabledInk_(palette.color(QPalette::Disabled, QPalette::ButtonText)),
        svg_(std::move(svg.replace(Ink, ink_.name().toLatin1()))) {}

  QIconEngine* clone() const override { return new PictureEngine(*this); }

  void paint(QPainter* painter, const QRect& rect, QIcon::Mode mode, QIcon::State state) override {
    const qreal scale = painter->device() ? painter->device()->devicePixelRatioF() : 1.0;
    painter->drawPixmap(rect, pixmap(rect.size() * scale, mode, state));
  }

  QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State) override {
    const bool isGrey = mode == QIcon::Disabled;
    Drawn& drawn = isGrey ? grey_ : coloured_;
    if (drawn.size == size) return drawn.pixmap;
    drawn.size = size;
    drawn.pixmap = QPixmap(size);
    drawn.pixmap.fill(Qt::transparent);
    QPainter painter(&drawn.pixmap);
    const int side = std::min(size.width(), size.height());
    QSvgRenderer(svg_).render(&painter, QRect((size.width() - side) / 2, (size.height() - side) / 2, side, side));
    if (isGrey) {
      painter.setCompositionMode(QPainter::CompositionMode_SourceIn);
      painter.fillRect(drawn.pixmap.rect(), disabledInk_);
    }
    return drawn.pixmap;
  }

 private:
  /// The last one asked for: toolbars ask for the same size again and again.
  struct Drawn {
    QSize size;
    QPixmap pixmap;
  };

  QColor ink_;
  QColor disabledInk_;
  QByteArray svg_;
  Drawn coloured_;
  Drawn grey_;
};

}  // namespace

QIcon PictureIcon(const std::string& name, const QPalette& palette) {
  InitPictures();
  QFile file(QStringLiteral(":/tactix/pictures/%1.svg").arg(QString::fromStdString(name)));
  if (!file.open(QIODevice::ReadOnly)) return {};
  return QIcon(new PictureEngine(file.readAll(), palette));
}

}  // namespace tactix::qt
