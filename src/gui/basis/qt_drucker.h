// Text and line output to a Qt printer (paper or PDF), in points from the top left corner of the
// printable area; a text line that would leave the page starts a new one.
#pragma once

#include "dienste/oberflaeche.h"

#include <QFont>
#include <QFontMetricsF>
#include <memory>

class QPainter;
class QPrinter;
class QWidget;

namespace quor::ui {

class QtDrucker : public Drucker {
public:
  explicit QtDrucker(QWidget* eltern);
  ~QtDrucker() override;

  void SetzeEltern(QWidget* eltern) { eltern_ = eltern; }
  // For tests and unattended use: print into this PDF file without asking.
  void SetzePdfZiel(const std::string& pfad) { pdfZiel_ = pfad; }

  bool StartDokument(const std::string& dokumentName) override;
  void Schrift(const std::string& name, double groesse, bool fett) override;
  double TextBreite(const std::string& text) override;
  double ZeilenHoehe() override;
  void Position(double x, double y) override;
  double X() const override { return x_; }
  double Y() const override { return y_; }
  void DruckeText(const std::string& text) override;
  void Linie(double x1, double y1, double x2, double y2) override;
  void NeueSeite() override;
  void EndeDokument() override;
  double SeitenBreite() const override;
  double SeitenHoehe() const override;

private:
  double Skala() const;
  QFontMetricsF Metrik() const;
  double InPunkten(double geraeteMass) const;

  QWidget* eltern_;
  std::string pdfZiel_;
  std::unique_ptr<QPrinter> printer_;
  std::unique_ptr<QPainter> painter_;
  QFont schrift_;
  double x_ = 0, y_ = 0;
};

} // namespace quor::ui
