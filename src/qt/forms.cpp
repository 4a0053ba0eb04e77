#include "qt/forms.h"

#include <algorithm>
#include <stdexcept>
#include <string>

#include "ui_SeikMenu.h"
#include "ui_fDHsei.h"
#include "ui_fHHksb.h"
#include "ui_fHHsei.h"
#include "ui_fSHsei.h"
#include "ui_fTHsei.h"

namespace qt {
namespace {

template <class Made>
void setUp(QMainWindow& window) {
  Made().setupUi(&window);
}

}  // namespace

const std::vector<Form>& forms() {
  static const std::vector<Form> all = {
      {"SeikMenu", setUp<Ui::SeikMenu>}, {"fSHsei", setUp<Ui::fSHsei>}, {"fDHsei", setUp<Ui::fDHsei>},
      {"fHHsei", setUp<Ui::fHHsei>},     {"fTHsei", setUp<Ui::fTHsei>}, {"fHHksb", setUp<Ui::fHHksb>},
  };
  return all;
}

void setUpForm(std::string_view screen, QMainWindow& window) {
  const auto form = std::find_if(forms().begin(), forms().end(),
                                 [screen](const Form& candidate) { return candidate.screen == screen; });
  if (form == forms().end()) throw std::logic_error("no form for screen " + std::string(screen));
  form->setUp(window);
}

}  // namespace qt
