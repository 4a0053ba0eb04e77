#pragma once

int cellar();
