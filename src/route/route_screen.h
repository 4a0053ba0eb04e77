#pragma once

#include "route/selection_screen.h"

namespace route {

/// What the screens of a route correction have in common that work in every data category: to each of the two
/// selection sets a list of categories, and a label for the opened one. Errors in opening data are reported
/// under the button that was pressed.
class RouteScreen : public SelectionScreen {
 public:
  ui::ListBox LstDataKubun{"LstDataKubun", this};
  ui::ListBox LstDataKubun1{"LstDataKubun1", this};
  ui::Label lblDatakubun{"lblDatakubun", this};

 protected:
  /// `width` × `height`: design size in twips.
  RouteScreen(const Names& names, const job::JobContext& context, ui::Desktop& desktop, float width,
              float height);

  /// Empty grids, the selection in front, the categories to choose from.
  void Form_Load() override;
};

}  // namespace route
