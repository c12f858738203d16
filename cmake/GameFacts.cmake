# Reads the texts that describe the launcher from the one file that knows its game, into variables
# of the same names.
set(game_facts ${PROJECT_SOURCE_DIR}/Sources/App/Project/GameFacts.h)
set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS ${game_facts})
foreach(fact launcherName programName applicationId developers homepage purpose)
    file(STRINGS ${game_facts} line REGEX " ${fact} = u\"[^\"]+\";$")
    if(NOT line)
        message(FATAL_ERROR "${game_facts} has no line for ${fact}.")
    endif()
    string(REGEX REPLACE ".*\"(.+)\".*" "\\1" ${fact} "${line}")
endforeach()
