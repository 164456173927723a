#pragma once

#include <QObject>

namespace tactix::bench {

class Sender : public QObject {
  Q_OBJECT

 Q_SIGNALS:
  void Raised();
};

}  // namespace tactix::bench
