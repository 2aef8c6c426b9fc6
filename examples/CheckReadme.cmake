# Fails unless README holds SOURCE, word for word, as a block of C++.

file(READ ${README} readme)
file(READ ${SOURCE} source)
string(FIND "${readme}" "```cpp\n${source}```\n" place)
if(place EQUAL -1)
    message(FATAL_ERROR "${README} doesn't show ${SOURCE} as it is")
endif()
