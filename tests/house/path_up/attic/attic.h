#pragma once

int attic();
