# Usage: mp4_hide.pl IN OUT BOX
# Copies an MP4 with the last box of that name turned into free space.
use strict;
use warnings;

my ($from, $to, $box) = @ARGV;
open my $in, '<:raw', $from or die "$from: $!\n";
my $data = do { local $/; <$in> };
close $in;

my $at = rindex $data, $box;
die "$from has no $box\n" if $at < 0;
substr $data, $at, 4, 'free';

open my $out, '>:raw', $to or die "$to: $!\n";
print $out $data;
close $out or die "$to: $!\n";
