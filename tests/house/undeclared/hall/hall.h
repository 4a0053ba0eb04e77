#pragma once

int hall();
